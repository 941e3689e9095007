// SPDX-License-Identifier: GPL-3.0-or-later
// Gaussian elimination on integers, without any code of the program but the prime.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "arith/Fp8.h"

namespace zep::tests {

// Rows in echelon form over F_p, grown row by row.
class plain_echelon {
 public:
  // True when the row is independent of those before.
  bool add(std::vector<int> row) {
    const int p = Fp8::prime;
    row = reduced(std::move(row));
    const auto pivot = std::find_if(row.begin(), row.end(), [](int x) { return x != 0; });
    if (pivot == row.end()) return false;
    const auto column = static_cast<std::size_t>(pivot - row.begin());
    int inverse = 1;
    while (inverse * row[column] % p != 1) ++inverse;
    for (int& x : row) x = x * inverse % p;
    rows_.emplace_back(column, row);
    return true;
  }

  // The row modulo the span of those before; 0 exactly when it lies in it.
  std::vector<int> reduced(std::vector<int> row) const {
    const int p = Fp8::prime;
    for (const auto& [column, pivot_row] : rows_) {
      const int c = row[column];
      if (c == 0) continue;
      for (std::size_t i = column; i < row.size(); ++i) {
        row[i] = ((row[i] - c * pivot_row[i]) % p + p) % p;
      }
    }
    return row;
  }

  int rank() const { return static_cast<int>(rows_.size()); }

 private:
  std::vector<std::pair<std::size_t, std::vector<int>>> rows_;
};

}  // namespace zep::tests
