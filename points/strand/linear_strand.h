// SPDX-License-Identifier: GPL-3.0-or-later
// The level loop of linear strands.
#pragma once

#include <functional>

#include "base/reporter.h"
#include "points/strand/form_vectors.h"

namespace zep::points {

// What is to be done with the vectors of a level, which are triangular from level 1 on; false ends
// the strand there.
using level_visitor = std::function<bool(int level, const form_vectors& vectors)>;

// The strand that starts with polynomials of one degree at level 0: the vectors of each further
// level are the linear syzygies of those before, one for each pair, zero or not. Visits a level
// when it has vectors; level 0 in any case.
void strand_of_generators(form_vectors generators, reporter& to, const level_visitor& visit);

// The strand that starts with linear relations at level 1, which it visits in any case. Only
// syzygies that are not zero make up a further level.
void strand_of_relations(form_vectors relations, reporter& to, const level_visitor& visit);

}  // namespace zep::points
