// The beta matrix: the leading forms of the separators. Here the leading form of a separator is its
// part of degree sigma + 1, the greatest that one can have; 0 if its own degree is smaller.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Chooses delta separators whose leading forms are a basis of all of them, and writes the
// leading form of every separator in that basis. Fills X.beta_matrix and X.basis. Writes progress.
// Runs once; makes what it needs.
void beta_matrix(scheme& X);

// Prints the basis and the matrix, and Line.
void disp_beta_matrix(std::ostream& out, scheme& X);

}  // namespace zep::points
