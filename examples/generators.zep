quiet
get A 6
1 1 0 0
1 1 1 0
1 1 0 1
1 0 -1 1
1 -1 1 0
1 -1 1 1
deltafn A
gbasis A
min A
deglex
get A 6
1 1 0 0
1 1 1 0
1 1 0 1
1 0 -1 1
1 -1 1 0
1 -1 1 1
gbasis A
min A
quit
