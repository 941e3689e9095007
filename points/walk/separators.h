// SPDX-License-Identifier: GPL-3.0-or-later
// Separators, and the properties that they decide.
#pragma once

#include <optional>

#include "base/reporter.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// What the separators say of X. Arithmetically Gorenstein schemes have the Cayley-Bacharach
// property; without it the separators leave the other question open.
struct verdicts {
  bool is_CB = false;
  std::optional<bool> is_ar_Go;
};

// Lets the separators, which bu_mo has found on its way, count as computed: tells their progress
// and end, and decides the two properties. X has the Cayley-Bacharach property when all separators
// have one degree, and then it is arithmetically Gorenstein when its Hilbert function is symmetric.
// (Davis, Geramita, Orecchia: Gorenstein algebras and the Cayley-Bacharach theorem, 1985.)
verdicts sep(const order_ideal& X, reporter& to);

}  // namespace zep::points
