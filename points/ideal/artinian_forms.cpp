// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/artinian_forms.h"

namespace zep::points {

canonical_forms Can_Lf(const order_ideal& X) { return {quotient::artinian, X}; }

}  // namespace zep::points
