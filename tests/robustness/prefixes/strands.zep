random A 4
linid A
linsyz A
linom A
linomsyz A
linres A
linres nobody
linid 
A
write A record
A
get B 0
linres B
get C 1
1 0 0 0
linres C
linom C
linid C x
linomsyz C
