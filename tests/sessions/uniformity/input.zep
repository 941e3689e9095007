dim 2
get A 5
1 0 0
1 1 0
1 2 0
1 0 1
1 0 2
betamat A
is_duf A
is_uf A 1
is_uf A 2
is_uf A 3
is_uf A 0
is_uf A x
is_uf A

 1
get B 4
1 0 0
1 1 0
1 2 0
1 0 1
betamat B
is_duf B
is_uf B 1
dim 3
random C 15
is_uf C 2
is_duf C
quiet
is_uf C 2
is_duf C
betamat C
