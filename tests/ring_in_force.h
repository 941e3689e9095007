// SPDX-License-Identifier: GPL-3.0-or-later
// The ring that a test computes in.
#pragma once

#include "arith/ring_in_force.h"

namespace zep::tests {

// Keeps the ring with this characteristic, dimension and term order in force while it lives, with
// the names that the program starts with. Hides the program's own guard, which takes a whole ring.
class ring_in_force : public arith::ring_in_force {
 public:
  explicit ring_in_force(int p = 101, int n = 3, term_order order = term_order::degrevlex)
      : arith::ring_in_force(ring{p, n, default_names, order}) {}
};

}  // namespace zep::tests
