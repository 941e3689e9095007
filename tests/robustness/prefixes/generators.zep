random A 4
min A
mindegs A
mindegs A
socle A
type A
is_gor A
putmin A
generators
putgbasis A
basis
putgbasis A loop
putscheme A points
scheme B points
B
write A record
write B
 missing
