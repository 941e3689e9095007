// SPDX-License-Identifier: GPL-3.0-or-later
// Linearly general position.
#pragma once

#include "linalg/matrix.h"

namespace zep::points {

// True when min(s, n + 1) of the points, the rows of P with a coordinate 1 before them, are
// linearly independent; that one such subset exists, not that all are independent.
bool has_independent_subset(const matrix& P);

}  // namespace zep::points
