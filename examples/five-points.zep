quiet
get A 5
1 0 0 0
1 1 0 0
1 0 1 0
1 0 0 1
1 3 7 11
deltafn A
is_gor A
type A
linid A
omega A
get B 5
1 0 0 0
1 1 0 0
1 0 1 0
1 0 0 1
1 3 7 0
deltafn B
is_cb B
type B
omega B
quit
