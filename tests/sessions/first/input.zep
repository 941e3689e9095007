char 31
dim 2
get A 5
1 0 0   1 1 0   1 0 1   1 1 1   1 2 3/2
gbasis A
hilbertfn A
sep A
is_cb A
random B 40
B
quit
