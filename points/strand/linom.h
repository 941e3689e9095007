// The linear strand of the canonical module, and the two strands together.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// The linear strand of the minimal graded free resolution of w_R: the generators of least degree
// (projections to monomials of the largest degree), the linear relations among these, the linear
// syzygies among those, and so on. All four make sure that the presentation exists, report their
// progress, mark each syzygy candidate that is none by a "." on standard output, and put the
// numbers into row 1 of linres from its end on, as far as they have a place there.

// Computes the numbers once and marks them as done.
void linom(scheme& X);

// Computes them each time, writes the linear relations and the further syzygies with headings, and
// marks the numbers as done.
void putlinom(std::ostream& out, scheme& X);

// Compute as far as the linear relations, each time, print or write these, and mark nothing. Row 1
// of linres ends there.
void linomsyz(std::ostream& out, scheme& X);
void putlinomsyz(std::ostream& out, scheme& X);

// Print the table of the numbers as they are; that for w_R, and that for both. Compute nothing.
void disp_linom(std::ostream& out, scheme& X);
void disp_linres(std::ostream& out, scheme& X);

}  // namespace zep::points
