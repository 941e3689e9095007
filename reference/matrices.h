// SPDX-License-Identifier: GPL-3.0-or-later
// Functions on matrices that no command needs.
#pragma once

#include <iosfwd>
#include <span>

#include "linalg/matrix.h"

namespace zep::reference {

// Determinant of the n x n matrix with entries (rr[i], col[j]); n is the length of both lists. That
// of the empty selection is 1.
Fp8 minor(const matrix& m, std::span<const int> col, std::span<const int> rr);

// Sets every entry to 0.
void init(matrix& m);

// Reads all entries, row by row.
std::istream& operator>>(std::istream& in, matrix& m);

}  // namespace zep::reference
