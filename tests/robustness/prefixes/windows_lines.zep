list
random A 3
A
get B 2
1:2 3 4
1 0 0 0
sep B
range
9
scheme C
windows.pts
putsep A result
write C
 record


del
A
identifiers
WXYZ
is_uf B
1
char 5
dim 2
random2 D 3
gbasis D 
quit
