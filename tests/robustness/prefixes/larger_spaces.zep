dim 5
random2 A 6
type A
identifiers abcdefghijklmnopqrstuvwxyzABC
dim 8
random B 3
gbasis B
dim 26
identifiers a1b2c3d4e5f6g7h8i9j0k!l"m#n$
dim 25
abc
get P 1
1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1
alpha P
dim 27
none of these
is long enough
quit
