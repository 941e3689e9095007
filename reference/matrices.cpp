// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/matrices.h"

#include <algorithm>
#include <istream>
#include <utility>
#include <vector>

#include "linalg/row_operations.h"

namespace zep::reference {

Fp8 minor(const matrix& m, std::span<const int> col, std::span<const int> rr) {
  const int n = static_cast<int>(col.size());
  matrix w(n, n);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) w[i][j] = m[rr[i]][col[j]];
  }
  std::vector<int> order = identity_order(n);
  const auto row = [&](int k) { return w[order[k]]; };
  Fp8 determinant(1);
  for (int k = 0; k < n; ++k) {
    int p = k;
    while (p < n && row(p)[k] == 0) ++p;
    if (p == n) return Fp8(0);
    if (p != k) {
      std::swap(order[p], order[k]);
      determinant = -determinant;
    }
    const Fp8 pivot = row(k)[k];
    determinant *= pivot;
    for (int i = k + 1; i < n; ++i) {
      axpy(row(i).subspan(k + 1), row(k).subspan(k + 1), -(row(i)[k] / pivot));
    }
  }
  return determinant;
}

void init(matrix& m) {
  for (int i = 0; i < m.rows(); ++i) std::fill(m[i].begin(), m[i].end(), Fp8(0));
}

std::istream& operator>>(std::istream& in, matrix& m) {
  for (int i = 0; i < m.rows(); ++i) {
    for (Fp8& x : m[i]) in >> x;
  }
  return in;
}

}  // namespace zep::reference
