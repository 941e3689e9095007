// Socle of the Artinian reduction, and type.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Finds homogeneous generators of the socle of R/(X_0), ascending: all members of O of top degree,
// and in every other degree the elements that all variables annihilate. Their number is the type of
// X (Bruns, Herzog: Cohen-Macaulay rings, section 1.2). Runs once; makes what it needs.
void socle(scheme& X);

// Prints the generators, or their number, and Line.
void disp_socle(std::ostream& out, scheme& X);
void typ(std::ostream& out, scheme& X);

}  // namespace zep::points
