// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk over the monomials has found, and the verdicts on the two properties, in words.
// Each function prints one result, and Line.
#pragma once

#include <iosfwd>

#include "points/ring/order_ideal.h"

namespace zep::text {

void alpha_X(std::ostream& out, const hilbert_numbers& H);
void sigma_X(std::ostream& out, const hilbert_numbers& H);
void delta_X(std::ostream& out, const hilbert_numbers& H);

// H(n) and delta H(n), up to the degree from which H is constant.
void hilb_fct(std::ostream& out, const hilbert_numbers& H);
void delta_fct(std::ostream& out, const hilbert_numbers& H);

void order_ideal(std::ostream& out, const points::order_ideal& X);

// The reduced Groebner basis of I(X), and the separators.
void groebner(std::ostream& out, const points::order_ideal& X);
void separators(std::ostream& out, const points::order_ideal& X);

// The Cayley-Bacharach verdict, and the arithmetically-Gorenstein one.
void is_CB(std::ostream& out, bool has_property);
void is_ar_Go(std::ostream& out, bool is_gorenstein);

}  // namespace zep::text
