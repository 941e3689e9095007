quiet
get A 12
1 0 0 0  1 0 0 1  1 0 0 2
1 0 1 0  1 0 1 1  1 0 1 2
1 1 0 0  1 1 0 1  1 1 0 2
1 1 1 0  1 1 1 1  1 1 1 2
min A
orderideal A
deltafn A
socle A
omega A
get B 11
1 0 0 0  1 0 0 1  1 0 0 2
1 0 1 0  1 0 1 1  1 0 1 2
1 1 0 0  1 1 0 1  1 1 0 2
1 1 1 0  1 1 1 1
deltafn B
socle B
omega B
quit
