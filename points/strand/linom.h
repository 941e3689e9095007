// SPDX-License-Identifier: GPL-3.0-or-later
// The linear strand of the canonical module.
#pragma once

#include <vector>

#include "base/reporter.h"
#include "points/module/presentation.h"
#include "points/strand/linear_strand.h"

namespace zep::points {

// Follows the linear strand of the minimal graded free resolution of w_R: the generators of least
// degree (projections to monomials of the largest degree), the linear relations among these at
// level 1, the linear syzygies among those, and so on. Calls visit(level, vectors) from level 1 on,
// and goes no further when it returns false; tells its progress, and marks each syzygy candidate
// that is none. Returns the numbers, one for each affine variable: that of the generators last,
// those of the levels before it, 0 where nothing is left.
std::vector<int> linom(const presentation& w_R, reporter& to, const level_visitor& visit);

}  // namespace zep::points
