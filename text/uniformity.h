// SPDX-License-Identifier: GPL-3.0-or-later
// Beta matrix and uniformity in words.
#pragma once

#include <iosfwd>
#include <optional>
#include <vector>

#include "points/walk/beta_matrix.h"

namespace zep::text {

// Points whose separators depend on each other in the top degree, ascending; none if X is uniform.
using dependence = std::optional<std::vector<int>>;

// Prints basis and matrix, and Line.
void disp_beta_matrix(std::ostream& out, const leading_forms& forms);

// Print a verdict, and Line.
// The delta-uniform property; `counted` says that a countdown stands on the line.
void is_delta_uf(std::ostream& out, const dependence& found, bool counted);
// The same for delta = 1, where the Cayley-Bacharach property decides.
void is_delta_uf_for_delta_one(std::ostream& out, bool is_CB);
// The n-uniform property for n below delta.
void is_n_uf(std::ostream& out, const dependence& found, int n);

// Print that there is no n-uniform property, or that it is not tested, for such n, and Line.
void refuse_n_not_positive(std::ostream& out);
void refuse_n_above_delta(std::ostream& out);

}  // namespace zep::text
