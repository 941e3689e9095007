// SPDX-License-Identifier: GPL-3.0-or-later
// The operations on rows that every elimination is made of. One place to make them faster.
//
// The rows of one call have one length and do not overlap, unless said. The result is the same,
// byte for byte, as that of the operators of Fp8.
#pragma once

#include <cstddef>

#include "linalg/row.h"

namespace zep::linalg {

// Sets d to d + c * s.
void axpy(row_view d, const_row_view s, Fp8 c);

// Sets d to c * d.
void scale(row_view d, Fp8 c);

// Sets d to the elementwise product of a and b; d may be a or b.
void pointwise_product(row_view d, const_row_view a, const_row_view b);

// The sum of a[i] * b[i]; a and b may be the same.
Fp8 dot(const_row_view a, const_row_view b);

// Position of the first non-zero element, the length if there is none.
std::size_t first_nonzero(const_row_view s);

}  // namespace zep::linalg
