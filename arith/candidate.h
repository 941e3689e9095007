// SPDX-License-Identifier: GPL-3.0-or-later
// Candidate monomials of a walk over the monomials (Buchberger-Moeller).
#pragma once

#include "arith/ordering.h"

namespace zep::arith {

// The monomial t = O[n] * x_k; n = k = -1 for the monomial 1, where the walk starts. `ins` counts
// how often t was reached, that is, how many t / x_i lie in the order ideal.
struct mmm {
  monom t;
  int n = -1;
  int k = -1;
  int ins = 0;
};

// Comparisons look at t alone.
inline bool operator==(const mmm& a, const mmm& b) { return a.t == b.t; }
inline bool operator<(const mmm& a, const mmm& b) { return a.t < b.t; }
inline bool operator>(const mmm& a, const mmm& b) { return a.t > b.t; }

}  // namespace zep::arith
