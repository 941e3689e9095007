quiet
dim 2
get A 9
1 0 0   1 0 1   1 0 -1
1 1 0   1 1 1   1 1 -1
1 -1 0  1 -1 1  1 -1 -1
hilbertfn A
min A
is_cb A
is_gor A
get B 8
1 0 0   1 0 1   1 0 -1
1 1 0   1 1 1   1 1 -1
1 -1 0  1 -1 1
hilbertfn B
min B
linomsyz B
get C 9
1 0 0   1 0 1   1 0 -1
1 1 0   1 1 1   1 1 -1
1 -1 0  1 -1 1  1 2 3
hilbertfn C
sigma C
mindegs C
is_cb C
is_gor C
quit
