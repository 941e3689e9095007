// Combinations of rows: the product of matrices, for rows that stand anywhere.
#pragma once

#include <cstddef>
#include <span>

#include "arith/Fp8.h"
#include "linalg/matrix.h"

namespace zep::linalg {

// Adds to each row of c a combination of the rows of b: c[i] += sum over j of a[i][j] * b[j].
//
// Every row of b and c has n elements; a has at least c.size() rows and exactly b.size() columns.
// No row of c overlaps another row of b or c.
void add_combinations(std::span<Fp8* const> c, const matrix& a, std::span<const Fp8* const> b,
                      std::size_t n);

}  // namespace zep::linalg
