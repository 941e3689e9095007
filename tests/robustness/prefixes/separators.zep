random2 A 5
betamat A
is_duf A
is_uf A 1
is_uf A 0
is_uf A
2
is_uf A x
is_cb A
is_gor A
quiet
is_duf A x
lingenpos A
putbeta A beta
putsep A
separators
putsep A folder
putbeta A full
A
