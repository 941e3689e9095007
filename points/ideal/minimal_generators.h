// SPDX-License-Identifier: GPL-3.0-or-later
// Minimal generators of the homogeneous vanishing ideal.
#pragma once

#include "points/ring/canonical_forms.h"
#include "points/ring/ideal.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// Selects from the homogenised reduced Groebner basis a minimal system of generators, ascending by
// degree, in projective monomials. A basis element is superfluous when it occurs with a constant in
// a relation between neighbours in the border, so the relations' constants are collected in a
// matrix and solved. (Moeller, Mora: New constructive methods in classical ideal theory, 1986.)
// `forms` are those of Can_Lf(X).
ideal min_Ix(const order_ideal& X, const canonical_forms& forms);

}  // namespace zep::points
