// Matrices of polynomials, row by row.
#pragma once

#include <vector>

#include "arith/polynomial.h"

namespace zep::points {

// A row of polynomials, most of them zero, as one list of the terms of all its entries: entry by
// entry, each descending in the order in force.
//
// All monomials of the rows that meet are of one kind, affine or projective. In one column, two
// monomials with equal affine parts have equal powers of the homogenising variable.
class polynomial_row {
 public:
  // c * m in entry `column`; c is not zero.
  struct term {
    monom m;
    int column = 0;
    Fp8 c;
  };

  // The zero row. Requires cols >= 0.
  explicit polynomial_row(int cols = 0) : cols_(cols) {}
  // The sum of the terms, in any order, also of one monomial in one column or with zeros.
  polynomial_row(int cols, const std::vector<term>& terms);
  explicit polynomial_row(const std::vector<polynomial>& entries);

  // Number of entries.
  int cols() const { return cols_; }
  bool is_zero() const { return terms_.empty(); }
  const std::vector<term>& terms() const { return terms_; }
  // All entries.
  std::vector<polynomial> entries() const;

  // For a column j, 0 <= j < cols():
  // Entry j.
  polynomial entry(int j) const;
  // The leading term of entry j; nullptr for zero.
  const term* leading_term(int j) const;

  // Multiplies every entry. In a composite characteristic that may lose terms.
  void operator*=(Fp8 c);
  // Subtracts c * b from the row; b has as many columns.
  void subtract(Fp8 c, const polynomial_row& b);

 private:
  int cols_;
  std::vector<term> terms_;
};

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

}  // namespace zep::points
