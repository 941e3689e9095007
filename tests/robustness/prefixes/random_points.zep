random A 3
A
random2 B 4
B
random A 2
random C 0
random C -4
random C x
random C 2000000000
random C 99999999999
random2 D 1
range
 2
random E 27
random E 28
random F
5
range 3 4
random2 G 6
list
display_all
del_all
list
