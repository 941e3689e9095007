// SPDX-License-Identifier: GPL-3.0-or-later
// Random rows of polynomials.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/draw.h"
#include "tests/points/dense_rows.h"
#include "tests/ring_in_force.h"

namespace zep::tests {

enum class kind { affine, projective };

// A projective monomial of the given degree, an affine one of that degree at the most.
inline monom random_monomial(kind k, int degree, std::mt19937& random) {
  monom m;
  if (k == kind::projective) prj(m);
  for (int left = degree; left > 0; --left) {
    const int v = below(random, proj);
    if (v < m.dim()) m.set_exp(v, m.exp(v) + 1);
  }
  return m;
}

inline polynomial random_entry(kind k, int degree, std::mt19937& random) {
  polynomial f;
  if (below(random, 2) == 0) return f;
  for (int terms = 1 + below(random, 3); terms > 0; --terms) {
    f += polynomial(random_monomial(k, degree, random), Fp8(below(random, Fp8::prime)));
  }
  return f;
}

inline dense_row random_row(kind k, int degree, const std::vector<int>& column_degree,
                            std::mt19937& random) {
  dense_row row;
  for (const int more : column_degree) row.push_back(random_entry(k, degree + more, random));
  return row;
}

inline std::vector<int> random_column_degrees(std::mt19937& random) {
  std::vector<int> degrees(1 + below(random, 4));
  for (int& degree : degrees) degree = below(random, 2);
  return degrees;
}

// With affine and with projective monomials.
template <class Check>
void for_random_rings(Check check) {
  std::mt19937 random(53);
  for (const int p : {2, 3, 4, 6, 12, 101, 221, 251}) {
    for (int n = 2; n <= 4; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        SCOPED_TRACE(testing::Message() << "p = " << p << ", n = " << n);
        for (int round = 0; round < 30; ++round) {
          check(kind::affine, random);
          check(kind::projective, random);
          if (::testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

}  // namespace zep::tests
