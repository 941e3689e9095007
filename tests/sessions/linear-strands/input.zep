dim 2
get A 3
1 0 0
1 1 0
1 0 1
linid A
A
linom A
A
linres A
linres A
linsyz A
linomsyz A
writelinres A stopped
linom A
putlinid A ideal
putlinres A both
putlinsyz A syzygies
putlinomsyz A relations
writelinid A table
writelinom A table2
putlinres A nowhere/at/all
putlinid A nowhere/at/all
get B 1
1 5 7
putlinom B beyond
linres B
get C 0
linres C
linsyz C
linomsyz C
putlinres C none
dim 3
quiet
random D 30
linres D
linsyz D
verbose
random E 10
writelinid E zeros
linsyz E
linid E
E
linid
linid F
deglex
get G 6
1 0 0 1
1 1 0 1
1 2 0 1
1 0 1 1
1 1 1 1
1 2 1 3
linres G
random H 8
linres H
char 2
get I 4
1 0 0 0
1 1 0 0
1 0 1 0
1 1 1 1
linres I
linsyz I
write I record
char 4
random J 4
linres J
char 101
get K 3
1 1 2 3
1 1 2 3
1 0 0 1
linres K
