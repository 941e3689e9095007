quiet
dim 2
get A 8
1 0 0   1 1 1   1 2 4   1 3 9
1 4 16  1 5 25  1 6 36  1 7 49
hilbertfn A
min A
is_gor A
get B 7
1 0 0   1 1 1   1 2 4   1 3 9
1 4 16  1 5 25  1 6 36
hilbertfn B
mindegs B
is_gor B
get C 7
1 0 0   1 1 1   1 2 4   1 3 9
1 4 16  1 5 25  1 6 35
hilbertfn C
mindegs C
quit
