// Results as text files, to keep or to use elsewhere.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// Each asks for a file name, opens the file, makes sure that the result exists, and writes it. A
// result that existed already prints Line in place of what its computation prints. Where the file
// can't be opened, that is reported, and nothing is computed. All throw end_of_input.
//
// The files hold one item a line: a number of rows, a number of columns, and the entries, column by
// column. Only `putbeta` writes row by row, which is the transposed matrix.
void putscheme(session& z, int identifier);
void putbeta(session& z, int identifier);
void putsep(session& z, int identifier);
void putGroebner(session& z, int identifier);
void putmin(session& z, int identifier);
void putA_d(session& z, int identifier);

// Writes the whole record as it is displayed.
void write(session& z, int identifier);

}  // namespace zep::front
