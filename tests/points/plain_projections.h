// SPDX-License-Identifier: GPL-3.0-or-later
// The projections as vectors of F_p^s, found the long way.
#pragma once

#include <utility>
#include <vector>

#include "tests/points/point_sets.h"

namespace zep::tests {

// Functionals on the functions on the points, given by their weights: lambda(f) is the sum over the
// points of weight times value. A form acts on them by multiplication with its values, X_0 as 1.
using weights = std::vector<int>;

inline weights times(weights w, const exponents& form, const std::vector<coordinates>& points) {
  for (std::size_t i = 0; i < w.size(); ++i) w[i] = w[i] * value_at(form, points[i]) % Fp8::prime;
  return w;
}

// The weights of the projections to the monomials of O, one row each: the inverse of the matrix of
// their values, by Gauss-Jordan elimination.
inline std::vector<weights> plain_projections(const std::vector<exponents>& O,
                                              const std::vector<coordinates>& points) {
  const int p = Fp8::prime;
  const std::size_t s = points.size();
  // Row i holds the values of O at point i, then unit vector i.
  std::vector<std::vector<int>> m(s, std::vector<int>(2 * s, 0));
  for (std::size_t i = 0; i < s; ++i) {
    for (std::size_t t = 0; t < s; ++t) m[i][t] = value_at(O[t], points[i]);
    m[i][s + i] = 1;
  }
  for (std::size_t c = 0; c < s; ++c) {
    std::size_t k = c;
    while (m[k][c] == 0) ++k;
    std::swap(m[c], m[k]);
    int inverse = 1;
    while (inverse * m[c][c] % p != 1) ++inverse;
    for (int& x : m[c]) x = x * inverse % p;
    for (std::size_t i = 0; i < s; ++i) {
      const int factor = m[i][c];
      if (i == c || factor == 0) continue;
      for (std::size_t j = c; j < 2 * s; ++j) m[i][j] = (m[i][j] + (p - factor) * m[c][j]) % p;
    }
  }
  std::vector<weights> result;
  result.reserve(s);
  for (const std::vector<int>& row : m) {
    result.emplace_back(row.begin() + static_cast<std::ptrdiff_t>(s), row.end());
  }
  return result;
}

}  // namespace zep::tests
