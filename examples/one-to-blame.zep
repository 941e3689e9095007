quiet
dim 2
get A 7
1 0 0   1 1 1   1 -1 1
1 2 4   1 -2 4  1 3 9
1 0 1
deltafn A
is_cb A
sep A
get B 6
1 0 0   1 1 1   1 -1 1
1 2 4   1 -2 4  1 3 9
deltafn B
is_cb B
get C 6
1 0 0   1 1 0   1 2 0   1 3 0
1 0 1   1 1 1
deltafn C
is_cb C
is_gor C
sep C
quit
