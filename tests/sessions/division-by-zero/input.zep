random A 2
get B 2
1 2 3 4
1 5/202 1 1
list
