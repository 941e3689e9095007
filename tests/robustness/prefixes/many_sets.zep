get 1 0
get 2 0
get 3 0
get 4 0
get abcdefghijkl 1 1 1 1 1
abcdefghijkl
alpha abcdefghijklm
del abcdefghijklmnop
get list 0
list
display list
del list
sep 1
gbasis 2
min 3
mindegs 3
socle 4
type 4
hilbertfn 1
is_cb 1
is_gor 2
lingenpos 1
betamat 2
is_duf 3
is_uf 4 1
putsep 1 none
write 1 none
display_all
