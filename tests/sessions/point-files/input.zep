scheme A good.pts
A
scheme A good.pts
scheme B plane.pts
scheme B malformed.pts
scheme B short.pts
scheme B negative.pts
scheme B none.pts
scheme C missing.pts
scheme C .
scheme C equal.pts
list
sep A
scheme D
