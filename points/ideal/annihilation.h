// SPDX-License-Identifier: GPL-3.0-or-later
// What variables annihilate in the Artinian reduction.
#pragma once

#include <optional>
#include <vector>

#include "linalg/column_choice.h"
#include "points/ring/canonical_forms.h"

namespace zep::points {

// The equations for the coefficients of a form of degree d in R/(X_0), d >= 0, in the first m
// members of O of that degree, 0 <= m <= R.dimension(d), which say that all the given variables
// annihilate it: that its products with them are 0 at all members of degree d + 1. Column c belongs
// to the member O[R.begin(d) + m - 1 - c], the greatest first. Nothing if 0 is the only solution.
// There is at least one variable, and `R` are the canonical forms of Can_Lf(X).
std::optional<column_choice> annihilation(const canonical_forms& R,
                                          const std::vector<int>& variables, int d, int m);

}  // namespace zep::points
