% list
list list
 ring
	verbose 	quiet
list;ring
LIST
-1
12
1/2
quit?
exitt
help me
random A 3 extra words
A B
del A B
random A 1 random B 1
B
dim 3 char 5
char 5 dim 3
is_uf
is_uf 
is_uf nobody 1
range 5
get
A 1
1
2
3
4
write 
A
record
putscheme
deltafn A
quit and more
list
