root
cyclotom
cyclotom2
cyclpol
gencycl
root of unity
Root
rooot
cyclotomabcdefgh
random root 2
root
display root
display
del
del nobody
alpha
alpha nobody
bumo  
root
display_all
list
del root
del_all
exit
