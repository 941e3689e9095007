quiet
char 2
get A 5
1 0 0 0  1 1 0 0  1 0 1 0  1 0 0 1  1 2 3 5
hilbertfn A
is_gor A
mindegs A
type A
char 3
get A 5
1 0 0 0  1 1 0 0  1 0 1 0  1 0 0 1  1 2 3 5
hilbertfn A
is_gor A
mindegs A
type A
char 5
get A 5
1 0 0 0  1 1 0 0  1 0 1 0  1 0 0 1  1 2 3 5
hilbertfn A
is_gor A
mindegs A
type A
char 101
get A 5
1 0 0 0  1 1 0 0  1 0 1 0  1 0 0 1  1 2 3 5
hilbertfn A
is_gor A
mindegs A
type A
get B 4
1 0 0 0  1 1 1 0  1 1 0 1  1 0 1 1
hilbertfn B
char 2
get B 4
1 0 0 0  1 1 1 0  1 1 0 1  1 0 1 1
hilbertfn B
quit
