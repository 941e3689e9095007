// SPDX-License-Identifier: GPL-3.0-or-later
// The Buchberger-Moeller algorithm.
#pragma once

#include "base/reporter.h"
#include "linalg/matrix.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// Walks over the monomials in ascending order and sorts them by their values at the points: a
// monomial whose values are independent of those before joins the order ideal O; one whose values
// depend on them lies in the border B, and leads an element of the reduced Groebner basis Ix if all
// its divisors lie in O. The separators of the points are what the values are reduced by. (Moeller,
// Buchberger: The construction of multivariate polynomials with preassigned zeros, 1982.)
//
// The points are the rows of P, by their affine coordinates. Tells its progress, which calls the
// reduced values a triangular sequence, and its end. Assumes a degree-compatible order. With
// repeated points, or a composite characteristic, the result means nothing, but has the same form.
order_ideal bu_mo(const matrix& P, reporter& to);

}  // namespace zep::points
