// SPDX-License-Identifier: GPL-3.0-or-later
// Monomials and polynomials written down in a line.
#pragma once

#include <initializer_list>
#include <utility>

#include "arith/polynomial.h"

namespace zep::tests {

// X^2YZ^3 is power_product({2, 1, 3}).
inline monom power_product(std::initializer_list<int> exponents) {
  monom m;
  int i = 0;
  for (const int e : exponents) m.set_exp(i++, e);
  return m;
}

// The same as a projective monomial; the exponent of the homogenising variable comes last.
inline monom projective(std::initializer_list<int> exponents) {
  monom m;
  prj(m);
  int i = 0;
  for (const int e : exponents) m.set_exp(i++, e);
  return m;
}

struct term_data {
  int coef = 0;
  monom term;
};

// The polynomial with these terms, given in descending order.
inline polynomial sum_of(std::initializer_list<term_data> terms) {
  std::vector<monom> monoms;
  std::vector<Fp8> coefs;
  for (const auto& [coef, term] : terms) {
    monoms.push_back(term);
    coefs.emplace_back(coef);
  }
  return {std::move(monoms), std::move(coefs)};
}

}  // namespace zep::tests
