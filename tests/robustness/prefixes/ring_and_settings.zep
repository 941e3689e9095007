help
ring
char 7
ring
deglex
degrevlex x
quiet
verbose
char 4
random A 2
gbasis A
char 0
char x 7
char -5
char 99999999999
dim 2
dim 1
dim two
identifiers
UVW
identifiers
a
abcd rest
range
x y
-3
0
5 more
ring
list
quit
