get A 2
1 2 three 4
A
get A 2
1:2:3:4
get A x
get A -1
A
get A 0
A
get A 1
1 1 1 1
get B 2000000000
1 2 3 4
1 1/ 2 3
get abcdefghijklm 1
get a-b 1
1 2 3 4
B
