char 4
get A 3
1 2 3 1
3 1 2 2
2 1 1 1
gbasis A
sep A
is_cb A
char 250
random A 30
sep A
char 101
get A 4
1 1 1 1
1 2 2 2
2 2 2 2
1 2 2 2
sep A
hilbertfn A
is_cb A
is_gor A
A
get B 0
B
orderideal B
gbasis B
hilbertfn B
deltafn B
alpha B
sigma B
delta B
sep B
is_cb B
is_gor B
lingenpos B
B
get C 1000000000
1 0 0 0
1 0 0 1
