// SPDX-License-Identifier: GPL-3.0-or-later
// Elimination among rows of polynomials, entry by entry. The canonical module is computed with rows
// over numbered monomials instead.
#pragma once

#include <vector>

#include "reference/polynomial_row.h"

namespace zep::reference {

// Entry j, 0 <= j < cols().
polynomial entry(const polynomial_row& r, int j);

// The leading term of entry j; nullptr for zero.
const polynomial_row::term* leading_term(const polynomial_row& r, int j);

// r - c * b; b has as many columns.
polynomial_row difference(const polynomial_row& r, Fp8 c, const polynomial_row& b);

// Rows with a common number of columns.
using polynomial_matrix = std::vector<polynomial_row>;

// Divides row i by the leading coefficient of its entry jj. The row becomes zero when that has no
// inverse: the entry is zero, or the characteristic composite.
void norm(polynomial_matrix& A, int i, int jj);

// Subtracts row k from row i, multiplied by the leading coefficient of entry jj of row i. With
// row k normed at jj, and equal leading monomials there, that monomial vanishes.
void reduce_c(polynomial_matrix& A, int k, int i, int jj);

// Brings A to triangular form, row by row: reduces a row by the rows before it until its pivot is
// the pivot of none of them, and norms it there. Rows before are not changed. Returns the column of
// every row's pivot, -1 for a row that is zero in the end.
std::vector<int> interreduce(polynomial_matrix& A);

}  // namespace zep::reference
