// SPDX-License-Identifier: GPL-3.0-or-later
// Neighbours in the Groebner basis.
#pragma once

#include "points/ring/canonical_forms.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// How many pairs of Groebner basis elements have leading monomials s and t that are neighbours: let
// a be the last variable that s has more often than t, and b the last one that t has more often
// than s; then lcm(s, t) / (x_a * x_b) lies in O. Stops counting at `enough`. `forms` are those of
// Can_Lf(X).
int neighbour_pairs(const order_ideal& X, const canonical_forms& forms, int enough);

}  // namespace zep::points
