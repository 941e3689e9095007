// SPDX-License-Identifier: GPL-3.0-or-later
// Which members of a Groebner basis of syzygies the others generate.
#pragma once

#include <vector>

#include "points/module/dual_module.h"

namespace zep::points {

// The syzygies whose leading elements are the given border elements of W, which generate all border
// elements of W, are a Groebner basis of the relations among its candidates. Tells for each of
// them, in their order, if it may be left out; all of those together may.
//
// A relation among the syzygies with a non-zero constant at one of them makes that one superfluous.
// As in Buchberger's criterion the relations come from pairs of a common owner: for a member P and
// variables x_a, x_b that both take it to the border, x_a x_b P has two expressions by syzygies.
// Nothing else is needed, and constants stand at syzygies of the pair's degree only, so that linear
// algebra modulo X_0 decides, degree by degree.
std::vector<bool> superfluous_syzygies(const dual_module& W, const std::vector<int>& leading);

}  // namespace zep::points
