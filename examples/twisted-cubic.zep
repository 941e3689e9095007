quiet
get A 9
1 0 0 0
1 1 1 1
1 2 4 8
1 3 9 27
1 4 16 64
1 5 25 125
1 6 36 216
1 7 49 343
1 8 64 512
hilbertfn A
deltafn A
min A
linid A
type A
quit
