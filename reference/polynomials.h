// SPDX-License-Identifier: GPL-3.0-or-later
// Functions on monomials and polynomials that no command needs.
#pragma once

#include "arith/monom.h"
#include "arith/polynomial.h"

namespace zep::reference {

// Divisibility, over all slots of a: a properly divides b.
bool Zn_order_lt(const monom& a, const monom& b);

// Exponent of the homogenising variable in the leading monomial.
int is_prj(const polynomial& a);

// Leading form: the terms of the degree of the leading term, up to the first term of another.
polynomial Lf(const polynomial& f);

}  // namespace zep::reference
