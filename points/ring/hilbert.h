// SPDX-License-Identifier: GPL-3.0-or-later
// Hilbert function and the numbers that can be read off it.
//
// With a degree-compatible term order the degrees of the order ideal count the Artinian reduction
// of the coordinate ring degree by degree.
#pragma once

#include <vector>

#include "arith/monom.h"
#include "points/ring/groebner_basis.h"

namespace zep::points {

struct hilbert_numbers {
  // H(n) and delta H(n) for n = 0 .. s-1.
  std::vector<int> hilb_fct;
  std::vector<int> delta_fct;
  // The largest degree in O less one, which is one less than the regularity index, -1 for a single
  // point; delta H at the largest degree; the initial degree of I(X). All 0 without points.
  int sigma = 0;
  int delta = 0;
  int alpha = 0;
};

// The numbers of a set with the order ideal O, one member for each point, and this Groebner basis.
hilbert_numbers hilbert(const std::vector<monom>& O, const groebner_basis& Ix);

// H(n) and delta H(n) for any n: 0 below 0; from s on the constant s, and 0.
int hilbert_function(const hilbert_numbers& H, int n);
int difference_function(const hilbert_numbers& H, int n);

}  // namespace zep::points
