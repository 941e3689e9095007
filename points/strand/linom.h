// SPDX-License-Identifier: GPL-3.0-or-later
// The linear strand of the canonical module.
#pragma once

#include <vector>

#include "base/reporter.h"
#include "points/module/presentation.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/order_ideal.h"
#include "points/strand/linear_strand.h"

namespace zep::points {

// Follows the linear strand of the minimal graded free resolution of w_R: the generators of least
// degree (projections to monomials of the largest degree), the linear relations among these at
// level 1, the linear syzygies among those, and so on. w_R is the presentation of X, A its Artinian
// reduction. Calls visit(level, vectors) from level 1 on, and goes no further when it returns false
// (without a visitor no vectors are written out, which is faster); tells its progress, and marks
// each syzygy candidate that is none. Returns the numbers, one for each affine variable: that of
// the generators last, those of the levels before it, 0 where nothing is left.
std::vector<int> linom(const presentation& w_R, const order_ideal& X, const canonical_forms& A,
                       reporter& to, const level_visitor& visit);

// The same pair by pair, for any presentation.
std::vector<int> linom_by_pairs(const presentation& w_R, reporter& to, const level_visitor& visit);

}  // namespace zep::points
