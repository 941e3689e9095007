// SPDX-License-Identifier: GPL-3.0-or-later
// The search for rows that depend on each other.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "linalg/matrix.h"

namespace zep::linalg {

// The first k-subset of the rows of m, in colexicographic order, that is linearly dependent, as
// ascending row numbers; none if all are independent. 1 <= k <= rows and k <= cols.
//
// The last chosen row moves slowest. Whenever it moves, also past the last row when all subsets
// were independent, `advanced` is called with the row that it moves to.
std::optional<std::vector<int>> first_dependent_subset(const matrix& m, int k,
                                                       const std::function<void(int)>& advanced);

}  // namespace zep::linalg
