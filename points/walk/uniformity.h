// SPDX-License-Identifier: GPL-3.0-or-later
// Uniformity: whether every choice of so many separators is independent in the top degree.
#pragma once

#include <optional>
#include <vector>

#include "base/reporter.h"
#include "linalg/matrix.h"

namespace zep::points {

// The first k of the points, in colexicographic order, ascending, whose separators have dependent
// leading forms; none if X is k-uniform. The forms are the rows of the beta matrix, and 0 <= k <=
// its number of columns. Tells how far the last point of the subsets has come.
std::optional<std::vector<int>> dependent_separators(const matrix& beta, int k, reporter& to);

}  // namespace zep::points
