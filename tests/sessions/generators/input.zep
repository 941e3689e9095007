get A 5
1 0 0 0
1 1 0 0
1 0 1 0
1 0 0 1
1 3 7 11
is_gor A
is_cb A
min A
A
sep A
is_gor A
type A
socle A
A
get B 7
1 0 0 0
1 1 1 1
1 2 4 8
1 3 9 27
1 4 16 64
1 5 25 125
1 0 5 0
mindegs B
socle B
is_gor B
quiet
random C 14
min C
mindegs C
socle C
type C
dim 2
get D 1
1 3 4
min D
mindegs D
socle D
is_gor D
get E 0
min E
mindegs E
socle E
type E
is_gor E
betamat E
is_duf E
is_uf E 1
display E
deglex
get F 6
1 0 0 1 1 0 1 2 0 1 0 1 1 1 1 1 2 1
min F
socle F
is_gor F
char 4
random G 9
min G
socle G
type G
