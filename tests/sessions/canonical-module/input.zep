get A 5
1 0 0 0
1 1 0 0
1 0 1 0
1 0 0 1
1 3 7 11
omega A
omega A
omegamat A
putomega A five
putomega A five
A
get B 1
1 5 6 7
omegamat B
omega B
get C 7
1 0 0 1
1 0 0 2
1 0 0 3
1 0 0 4
1 0 0 5
1 0 1 0
1 1 0 0
omega C
omegamat C
putomega C nowhere/at/all
get D 0
omega D
omegamat D
putomega D none
D
quiet
random E 20
omega E
verbose
putomega E twenty
deglex
dim 2
get F 6
1 0 0
1 1 1
1 2 4
1 3 9
1 4 16
1 5 25
putomega F conic
omegamat F
write F record
omega G
omega
char 2
random H 4
omegamat H
char 4
get I 3
1 0 0
1 2 2
1 2 0
omega I
char 101
get J 3
1 2 2
1 2 2
1 2 2
omegamat J
