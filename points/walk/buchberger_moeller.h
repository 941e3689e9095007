// The Buchberger-Moeller algorithm.
#pragma once

#include "points/record/scheme.h"

namespace zep::points {

// Walks over the monomials in ascending order and sorts them by their values at the points: a
// monomial whose values are independent of those before joins the order ideal O; one whose values
// depend on them lies in the border B, and leads an element of the reduced Groebner basis Ix if all
// its divisors lie in O. The separators of the points are what the values are reduced by. (Moeller,
// Buchberger: The construction of multivariate polynomials with preassigned zeros, 1982.)
//
// Fills everything that `scheme` lists under bu_mo, with `hilbert`. Writes progress, which calls
// the reduced values a triangular sequence, and Line to standard output. Must not run twice on a
// scheme; assumes a degree-compatible order.
void bu_mo(scheme& X);

// Runs bu_mo unless it has run.
void need_bu_mo(scheme& X);

}  // namespace zep::points
