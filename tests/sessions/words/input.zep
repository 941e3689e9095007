nonsense
abcdefghijklmno
alphabet A
alpha
alpha A
alpha 
B
del
display
random A 1
A and more
del A A
get a-b 2
random A 2
get A 2
list 	 x
ring
list
cyclpol
gencycl 5

 	
help
quit and more
list
