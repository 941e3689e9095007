get A 4 1 0 0 0 1:1 2 3 2 1/2 -3 4 -1 +5 100 -200
A
orderideal A
bumo A
gbasis A
gbasis A
is_cb A
is_gor A
lingenpos A
display A
get B 2 3:1 1 1 1:2 2 2 B
B
alpha B sigma B
