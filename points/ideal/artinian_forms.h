// SPDX-License-Identifier: GPL-3.0-or-later
// Multiplication in the Artinian reduction.
#pragma once

#include "points/ring/canonical_forms.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// The canonical forms of R/(X_0), modulo the leading forms of the Groebner basis of X.
canonical_forms Can_Lf(const order_ideal& X);

}  // namespace zep::points
