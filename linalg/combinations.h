// SPDX-License-Identifier: GPL-3.0-or-later
// Combinations of rows: the product of matrices, for rows that stand anywhere.
#pragma once

#include <span>

#include "linalg/matrix.h"
#include "linalg/row.h"

namespace zep::linalg {

// Adds to each row of c a combination of the rows of b: c[i] += sum over j of a[i][j] * b[j].
//
// All rows of b and c have one length; a has at least c.size() rows and exactly b.size() columns.
// No row of c overlaps another row of b or c.
void add_combinations(std::span<const row_view> c, const matrix& a,
                      std::span<const const_row_view> b);

}  // namespace zep::linalg
