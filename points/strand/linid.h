// The linear strand of the vanishing ideal.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// The linear strand of the minimal graded free resolution of I_X: the minimal generators of least
// degree, the linear syzygies among these, the linear syzygies among those, and so on. All four
// make sure that the minimal generators exist, report their progress, mark each syzygy candidate
// that is none by a "." on standard output, and put the numbers into row 0 of linres, as far as
// they have a place there.

// Computes the numbers once and marks them as done.
void linid(scheme& X);

// Computes them each time, prints the syzygies of each level, and marks nothing.
void linsyz(std::ostream& out, scheme& X);

// Computes them each time, writes generators and syzygies with headings, and marks the numbers as
// done.
void putlinid(std::ostream& out, scheme& X);

// Computes them each time, writes the syzygies of each level, and marks nothing.
void putlinsyz(std::ostream& out, scheme& X);

// Prints the table of the numbers as they are; computes nothing.
void disp_linid(std::ostream& out, scheme& X);

}  // namespace zep::points
