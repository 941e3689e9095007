scheme A plane.pts
scheme A short.pts
scheme A words.pts
scheme A colons.pts
scheme A negative.pts
scheme A huge.pts
scheme A binary.pts
scheme A empty.pts
scheme A dimension.pts
scheme A number.pts
scheme A slash.pts
scheme A folder
scheme A missing
scheme A loop
scheme A full
scheme A!
scheme A space.pts x
scheme A space.pts
list
