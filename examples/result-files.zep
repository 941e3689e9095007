quiet
get A 5
1 0 0 0
1 1/2 0 0
1 0 1/2 0
2 0 0 1
-2 -1 -1 -1
putscheme A points
putbeta A beta
gbasis A
putgbasis A basis
deglex
scheme B points
B
gbasis B
putgbasis B basis.deglex
quit
