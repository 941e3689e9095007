// SPDX-License-Identifier: GPL-3.0-or-later
// Matrices written down in a line.
#pragma once

#include <initializer_list>

#include "linalg/matrix.h"

namespace zep::tests {

// The matrix with these rows, all of one length.
inline matrix matrix_of(std::initializer_list<std::initializer_list<int>> rows) {
  matrix m(static_cast<int>(rows.begin()->size()), static_cast<int>(rows.size()));
  int i = 0;
  for (const auto& row : rows) {
    int j = 0;
    for (const int entry : row) m[i][j++] = Fp8(entry);
    ++i;
  }
  return m;
}

}  // namespace zep::tests
