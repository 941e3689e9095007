// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of polynomials.
#pragma once

#include <vector>

#include "arith/polynomial.h"

namespace zep::reference {

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

  // Multiplies every entry. In a composite characteristic that may lose terms.
  void operator*=(Fp8 c);

 private:
  int cols_;
  std::vector<term> terms_;
};

}  // namespace zep::reference
