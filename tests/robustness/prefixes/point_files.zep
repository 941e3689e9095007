scheme A space.pts
A
sep A
scheme B line.pts
scheme C
windows.pts
scheme D fractions.pts
scheme E none.pts
E
scheme F equal.pts
scheme G more.pts and
scheme H zero.pts
list
dim 2
scheme A plane.pts
gbasis A
dim 4
scheme A four.pts
min A
