// Linearly general position.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// True when min(s, n + 1) of the points, taken with their homogeneous coordinates, are linearly
// independent; that one such subset exists, not that all are independent.
bool has_independent_subset(const scheme& X);

// Prints the verdict and Line.
void lingenpos(std::ostream& out, scheme& X);

}  // namespace zep::points
