// Uniformity: whether every choice of so many separators is independent in the top degree.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Decides the delta-uniform property, that is, k = delta, and prints the verdict and Line; with
// `verbose` a countdown before it. Makes what it needs.
void is_delta_uf(std::ostream& out, scheme& X);

// The same for the n-uniform property, k = n, for n up to delta; refuses other n.
void is_n_uf(std::ostream& out, scheme& X, int n);

}  // namespace zep::points
