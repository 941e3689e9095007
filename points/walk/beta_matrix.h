// SPDX-License-Identifier: GPL-3.0-or-later
// The beta matrix: the leading forms of the separators. Here the leading form of a separator is its
// part of degree sigma + 1, the greatest that one can have; 0 if its own degree is smaller.
#pragma once

#include <vector>

#include "base/reporter.h"
#include "linalg/matrix.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

struct leading_forms {
  // Entry (i, l) is the coefficient of the leading form of separator basis[l] in that of separator
  // i: s rows, delta columns.
  matrix beta;
  std::vector<int> basis;
};

// Chooses delta separators whose leading forms are a basis of all of them - the first point first,
// the greatest member of O first - and writes the leading form of every separator in that basis.
// Tells its progress.
leading_forms beta_matrix(const order_ideal& X, reporter& to);

}  // namespace zep::points
