quiet
get A 7
1 0 0 0
1 1 1 1
1 2 4 8
1 3 9 27
1 4 16 64
1 5 25 125
1 6 36 216
linres A
mindegs A
omega A
get B 7
1 0 0 0
1 1 1 1
1 2 4 8
1 3 9 27
1 4 16 64
1 5 25 125
1 6 36 215
linres B
mindegs B
omega B
get C 4
1 0 0 0
1 1 0 0
1 0 1 0
1 0 0 1
linres C
quit
