// SPDX-License-Identifier: GPL-3.0-or-later
// Self-associated sets of points.
#pragma once

#include <random>
#include <utility>
#include <vector>

#include "linalg/matrix.h"
#include "tests/draw.h"

namespace zep::tests {

// The matrix (I + S | I - S) with S random and S^T = -S, brought into the form (I | Q): Q is
// orthogonal (Cayley), with m rows. Without rows when I + S has no inverse.
inline matrix with_orthogonal_part(int m, std::mt19937& random) {
  matrix pair(2 * m, m);
  for (int i = 0; i < m; ++i) {
    pair[i][i] = 1;
    pair[i][m + i] = 1;
    for (int j = 0; j < i; ++j) {
      const Fp8 x(below(random, Fp8::prime));
      pair[i][j] = x;
      pair[j][i] = -x;
      pair[i][m + j] = -x;
      pair[j][m + i] = x;
    }
  }
  std::vector<int> columns = identity_order(2 * m);
  std::vector<int> rows = identity_order(m);
  if (pair.solve(columns, rows) != m) return {2 * m, 0};
  matrix reduced(2 * m, m);
  for (int k = 0; k < m; ++k) {
    // A pivot further to the right means that I + S has a smaller rank.
    if (columns[k] >= m) return {2 * m, 0};
    reduced[columns[k]][columns[k]] = 1;
    for (int l = m; l < 2 * m; ++l) reduced[columns[k]][columns[l]] = pair[rows[k]][columns[l]];
  }
  return reduced;
}

// 2n + 2 points of the space in force that are their own Gale transform: the columns of (I | Q), Q
// orthogonal of n + 1 rows, are so by the diagonal matrix (I, -I) (Eisenbud, Popescu: The
// projective geometry of the Gale transform, J. Algebra 230, 2000). A random linear form takes the
// place of the first coordinate, so that none is at infinity. For larger primes they are expected
// to be arithmetically Gorenstein with h-vector 1, n, n, 1. Requires an odd prime.
inline matrix self_associated_points(std::mt19937& random) {
  const int m = dim + 1;
  while (true) {
    const matrix columns = with_orthogonal_part(m, random);
    row form(m);
    for (Fp8& x : form) x = below(random, Fp8::prime);
    if (columns.rows() == 0 || form[0] == 0) continue;
    matrix P(dim, 2 * m);
    bool finite = true;
    for (int k = 0; k < P.rows(); ++k) {
      Fp8 first(0);
      for (int i = 0; i < m; ++i) first += form[i] * columns[i][k];
      finite = finite && first != 0;
      for (int i = 1; i < m && finite; ++i) P[k][i - 1] = columns[i][k] / first;
    }
    if (finite) return P;
  }
}

}  // namespace zep::tests
