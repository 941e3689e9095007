// The beta matrix: the leading forms of the separators.
#pragma once

#include <iosfwd>

#include "scheme/scheme.h"

namespace zep {

// Chooses delta separators whose leading forms are a basis of those of top degree, and writes the
// leading form of every separator in that basis. Fills X.beta_matrix and X.basis. Writes progress.
// Runs once; makes what it needs.
void beta_matrix(scheme& X);

// Prints the basis and the matrix, and Line.
void disp_beta_matrix(std::ostream& out, scheme& X);

}  // namespace zep
