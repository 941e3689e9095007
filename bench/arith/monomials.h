// SPDX-License-Identifier: GPL-3.0-or-later
// Monomials and polynomials for benchmarks.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "arith/ordering.h"
#include "arith/polynomial.h"
#include "bench/irregular_numbers.h"

namespace zep::tests {

// Affine monomials with exponents 0 .. 3: their degrees are near each other, and sometimes equal.
inline std::vector<monom> irregular_monomials(int count) {
  irregular_numbers numbers(1);
  std::vector<monom> monomials(count);
  for (monom& m : monomials) {
    for (int i = 0; i < dim; ++i) m.set_exp(i, numbers.below(4));
  }
  return monomials;
}

// Calls `work` with each monomial and the next one.
template <class Work>
void for_neighbours(const std::vector<monom>& monomials, Work work) {
  for (std::size_t i = 0; i + 1 < monomials.size(); ++i) work(monomials[i], monomials[i + 1]);
}

// The products of m and the monomials of degree `degree` in the variables from `variable` on.
inline void append_multiples(std::vector<monom>& monomials, monom m, int variable, int degree) {
  if (variable == dim - 1) {
    m.set_exp(variable, degree);
    monomials.push_back(m);
    return;
  }
  for (int e = 0; e <= degree; ++e) {
    m.set_exp(variable, e);
    append_multiples(monomials, m, variable + 1, degree - e);
  }
}

// The `count` smallest affine monomials, descending.
inline std::vector<monom> smallest_monomials(int count) {
  std::vector<monom> monomials;
  for (int degree = 0; std::ssize(monomials) < count; ++degree) {
    append_multiples(monomials, monom(), 0, degree);
  }
  std::sort(monomials.begin(), monomials.end());
  monomials.resize(count);
  std::reverse(monomials.begin(), monomials.end());
  return monomials;
}

// A polynomial with so many terms. It has one of each two neighbouring monomials, and two
// polynomials with different `start` share about half of their terms.
inline polynomial irregular_polynomial(int terms, std::uint64_t start) {
  irregular_numbers numbers(start);
  const std::vector<monom> monomials = smallest_monomials(2 * terms);
  std::vector<monom> term;
  std::vector<Fp8> coef;
  for (int i = 0; i < terms; ++i) {
    term.push_back(monomials[2 * i + numbers.below(2)]);
    coef.emplace_back(1 + numbers.below(Fp8::prime - 1));
  }
  return {std::move(term), std::move(coef)};
}

}  // namespace zep::tests
