// Minimal generators of the homogeneous vanishing ideal.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Selects from the homogenised reduced Groebner basis a minimal system of generators, ascending by
// degree. A basis element is superfluous when it occurs with a constant in a relation between
// neighbours in the border, so the relations' constants are collected in a matrix and solved.
// (Moeller, Mora: New constructive methods in classical ideal theory, 1986.) Runs once; makes what
// it needs.
void min_Ix(scheme& X);

// Prints the generators, or how many there are in each degree, and Line.
void disp_min(std::ostream& out, scheme& X);
void deg_min(std::ostream& out, scheme& X);

}  // namespace zep::points
