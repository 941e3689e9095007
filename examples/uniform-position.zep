quiet
dim 2
get A 5
1 0 0   1 1 1   1 2 4   1 3 9   1 4 16
deltafn A
is_uf A 1
is_duf A
get B 5
1 0 0   1 1 0   1 2 0   1 0 1   1 0 2
deltafn B
is_uf B 1
is_duf B
betamat B
get C 4
1 0 0   1 1 0   1 2 0   1 0 1
deltafn C
is_uf C 1
betamat C
quit
