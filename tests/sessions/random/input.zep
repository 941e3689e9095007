random A 5
A
random2 B 7
B
random A 3
range
1
random C 8
C
random2 D 8
D
random E 9
random E 0
random E x
char 2
random E 8
E
sep E
quit
