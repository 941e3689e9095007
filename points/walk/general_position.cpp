// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/general_position.h"

#include <algorithm>

namespace zep::points {

namespace {

// Row i: the coordinates of point i, the leading 1 included.
matrix homogeneous_coordinates(const matrix& P) {
  matrix m(P.cols() + 1, P.rows());
  for (int i = 0; i < P.rows(); ++i) {
    m[i][0] = 1;
    std::copy(P[i].begin(), P[i].end(), m[i].begin() + 1);
  }
  return m;
}

}  // namespace

bool has_independent_subset(const matrix& P) {
  // A non-zero minor of full size exists exactly when the rank is full; nobody has to look at
  // every subset.
  const matrix m = homogeneous_coordinates(P);
  return rank(m) == std::min(m.rows(), m.cols());
}

}  // namespace zep::points
