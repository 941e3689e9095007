// SPDX-License-Identifier: GPL-3.0-or-later
// Reduction modulo p of sums of products through floats, which tiles do in words of floats.
//
// A float holds sums x below 2^24 exactly, as it does the products of p with integers that are not
// greater. The reciprocal is too small by at most 3 parts in 2^23, and rounding the product with x
// adds one: so the quotient, rounded down, is not greater than the true one, and smaller by less
// than x / p * 4 / 2^23 + 1. The rest x - quotient * p is below p + x / 2^21. That is p + 8, or,
// for p < 8, where sums are below 2^14, at most p: always less than 2 * p, so that p is subtracted
// once if at all.
#pragma once

#include "linalg/kernels/bounds.h"
#include "linalg/kernels/residues.h"

namespace zep::linalg {

static_assert(exact_in_a_float == 1U << 24U);
static_assert(products_in_a_tile * 6 * 6 + 6 < 1U << 14U);

// A little less than 1 / p.
inline float reciprocal_below(lane p) { return (1.0F - 0x1p-22F) / static_cast<float>(p); }

}  // namespace zep::linalg
