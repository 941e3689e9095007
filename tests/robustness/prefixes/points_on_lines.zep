get A 3
1 0 0 0
1 1 0 0
1:0 1 0
A
hilbertfn A
deltafn A
alpha A
sigma A
delta A
sep A
del A
list
get B 2

 1
 2
3
4 1
:0 0 5/7
B
get C
3
2:1 2 3
-1:1 2 3
1/2 0 0 -6/5
C
display_all
