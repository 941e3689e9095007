// SPDX-License-Identifier: GPL-3.0-or-later
// Polynomials brought back onto the order ideal by canonical forms.
#pragma once

#include <span>

#include "arith/polynomial.h"
#include "points/ring/order_ideal.h"

namespace zep::reference {

// The position, from 0, of the term of f with the monomial t, or -1. An affine and a projective
// monomial are compared by their affine parts.
int check(const polynomial& f, const monom& t);

// The position in O of a monomial, with a short cut by degree: the monomial 1 is always at 0, and
// others are looked for among those of their degree; -1 for one that is not there.
int is_el_O(const order_ideal& X, const monom& t);

// Replaces the terms of f outside the order ideal of X until none is left, the first one first, and
// returns f. The monomial OO[l] has the canonical form Can[l]; of equal ones the first counts. A
// term c * t is replaced by c * u * Can[l], where t = u * OO[l] and u is a power of the
// homogenising variable, or 1, as monomials are compared in the way of `check`.
//
// Requires as many forms as monomials in OO. The monomials of a form are smaller than
// its own monomial; with other forms there may be no end to the replacing, so it stops after as
// many replacements as OO is long. A term whose monomial is not in OO stays.
polynomial& Can_OO(polynomial& f, std::span<const monom> OO, std::span<const polynomial> Can,
                   const order_ideal& X);

}  // namespace zep::reference
