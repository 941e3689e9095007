// Uniformity: whether every choice of so many separators is independent in the top degree.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <vector>

#include "scheme/scheme.h"

namespace zep {

// The first k-subset of the rows of m, in colexicographic order, that is linearly dependent, as
// ascending row numbers; none if all are independent. 1 <= k <= rows and k <= cols.
//
// The last chosen row moves slowest. Whenever it moves, also past the last row when all subsets
// were independent, `advanced` is called with the row that it moves to.
std::optional<std::vector<int>> first_dependent_subset(const matrix& m, int k,
                                                       const std::function<void(int)>& advanced);

// Decides the delta-uniform property, that is, k = delta, and prints the verdict and Line; with
// `verbose` a countdown before it. Makes what it needs.
void is_delta_uf(std::ostream& out, scheme& X);

// The same for the n-uniform property, k = n, for n up to delta; refuses other n.
void is_n_uf(std::ostream& out, scheme& X, int n);

}  // namespace zep
