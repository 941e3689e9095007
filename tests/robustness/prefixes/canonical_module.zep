random A 5
omega A
omegamat A
putomega A omega
omega A x
get B 0
omega B
omegamat B
putomega B folder
putomega B
none
get C 1 1 2 3 4
omega C
omegamat C
C
