quiet
char 7
get A 7
1 0 0 0
1 1 1 1
1 2 4 8
1 3 9 27
1 4 16 64
1 5 25 125
1 6 36 216
hilbertfn A
is_uf A 2
is_uf A 3
betamat A
char 2
get B 7
1 1 0 0
1 0 1 0
1 0 0 1
1 1 1 0
1 1 0 1
1 0 1 1
1 1 1 1
hilbertfn B
is_uf B 2
is_uf B 3
betamat B
quit
