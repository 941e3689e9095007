dim 2
get A 4
1 0 0
1 1 0
1 0 1
1 2/3 3
putscheme A points
putbeta A beta
putbeta A beta2
putsep A separators
putgbasis A basis
putmin A generators
putmin A generators2
socle A
write A record
putsep A nowhere/separators
putsep A .
putscheme A /dev/full
scheme B points
B
putgbasis B
