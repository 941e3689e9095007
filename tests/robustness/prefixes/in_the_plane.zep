dim 2
identifiers xyz
random A 6
hilbertfn A
gbasis A
deglex
list
char 3
range
1
random A 5
random A 4
orderideal A
socle A
linres A
char 2
random2 B 3
is_duf B
display B
char 251
range 300
random2 B 5
min B
