random A 6
bumo A
bumo A
alpha A
sigma A
delta A
deltafn A
orderideal A
is_cb A
sep A
is_gor A
A
quiet
random B 12
sep B
deglex
random A 6
gbasis A
sep A
display_all
