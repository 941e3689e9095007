// SPDX-License-Identifier: GPL-3.0-or-later
// Random matrices and permutations.
#pragma once

#include <random>
#include <utility>
#include <vector>

#include "linalg/matrix.h"
#include "tests/draw.h"

namespace zep::tests {

using permutation = std::vector<int>;

// Entry i of a permutation.
inline int& at(permutation& list, int i) { return list[static_cast<std::size_t>(i)]; }
inline int at(const permutation& list, int i) { return list[static_cast<std::size_t>(i)]; }

// About so many of ten entries are 0.
inline matrix random_matrix(std::mt19937& random, int cols, int rows, int zeros_in_ten) {
  matrix m(cols, rows);
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < cols; ++j) {
      m[i][j] = Fp8(below(random, 10) < zeros_in_ten ? 0 : below(random, Fp8::prime));
    }
  }
  return m;
}

// Row i becomes a multiple of row k, column i one of column k, so that ranks differ.
inline void make_dependent(std::mt19937& random, matrix& m) {
  const int i = below(random, m.rows());
  const int k = below(random, m.rows());
  const Fp8 c(below(random, Fp8::prime));
  for (int j = 0; j < m.cols(); ++j) m[i][j] = c * m[k][j];
  const int from = below(random, m.cols());
  const int to = below(random, m.cols());
  for (int row = 0; row < m.rows(); ++row) m[row][to] = c * m[row][from];
}

inline permutation random_order(std::mt19937& random, int n) {
  permutation result = identity_order(n);
  for (int i = n - 1; i > 0; --i) std::swap(at(result, i), at(result, below(random, i + 1)));
  return result;
}

}  // namespace zep::tests
