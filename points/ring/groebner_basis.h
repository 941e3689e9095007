// SPDX-License-Identifier: GPL-3.0-or-later
// Polynomials supported on an order ideal, kept as rows of coefficients.
//
// Separators and the tails of Groebner basis elements are dense over the order ideal O: entry i of
// the row is the coefficient of O[i], O ascending. They become polynomials where they are printed
// or handed on.
#pragma once

#include <vector>

#include "arith/polynomial.h"
#include "linalg/row.h"
#include "points/ring/monom_index.h"

namespace zep::points {

// The sum of coefs[i] * O[i]. The row may be shorter than O.
polynomial combination(const_row_view coefs, const std::vector<monom>& O);

// Position of the leading monomial in O of the row's polynomial; 0 when that is zero.
int leading_position(const_row_view coefs);

// A reduced Groebner basis whose elements are a monic leading monomial plus a tail over O: the
// elements, in ascending order of leading monomials.
class groebner_basis {
 public:
  // leads[g] leads element g, tails[g] are the coefficients of its tail over O, not longer than O.
  groebner_basis(std::vector<monom> leads, std::vector<row> tails);

  int no_of_gens() const { return static_cast<int>(leads_.size()); }

  // Leading monomial of element g, 0 <= g < no_of_gens().
  const monom& lead(int g) const { return leads_[g]; }

  // The coefficients over O of element g without its leading monomial, up to the last member of O
  // below that monomial.
  const_row_view tail(int g) const { return tails_[g]; }

  // Element g.
  polynomial gen(int g, const std::vector<monom>& O) const;

  // The element with leading monomial t, or -1.
  int find(const monom& t) const { return index_.find(t); }

 private:
  std::vector<monom> leads_;
  std::vector<row> tails_;
  monom_index index_;
};

}  // namespace zep::points
