// SPDX-License-Identifier: GPL-3.0-or-later
// Socle of the Artinian reduction.
#pragma once

#include "points/ring/canonical_forms.h"
#include "points/ring/ideal.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// Finds homogeneous generators of the socle of R/(X_0), ascending: all members of O of top degree,
// and in every other degree the elements that all variables annihilate. Their number is the type of
// X, 1 exactly when X is arithmetically Gorenstein (Bruns, Herzog: Cohen-Macaulay rings, sections
// 1.2 and 3.2). `R` are the canonical forms of Can_Lf(X).
ideal socle(const order_ideal& X, const canonical_forms& R);

}  // namespace zep::points
