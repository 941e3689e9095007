// SPDX-License-Identifier: GPL-3.0-or-later
// The canonical module.
#pragma once

#include "base/reporter.h"
#include "points/module/presentation.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// Computes a minimal homogeneous presentation of the canonical module w_R, the dual over K[X_0] of
// the coordinate ring R (Bruns, Herzog: Cohen-Macaulay rings, theorem 3.3.7). Tells its progress.
presentation omega(const order_ideal& X, reporter& to);

}  // namespace zep::points
