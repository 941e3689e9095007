// SPDX-License-Identifier: GPL-3.0-or-later
// Changing the ring in force.
#pragma once

#include "arith/ring.h"

namespace zep::arith {

// Puts the ring in force: characteristic with the tables of Fp8, number and names of the variables,
// term order. Field elements, monomials and polynomials that were made in another one have no
// meaning from then on, but have it again when theirs is. Nothing has a meaning before the first
// ring has been put in force.
void enforce(const ring& R);

// Keeps a ring in force while it lives; then the one before it is again. Nests.
class ring_in_force {
 public:
  explicit ring_in_force(const ring& R) : before_(current_ring()) { enforce(R); }
  ~ring_in_force() { enforce(before_); }
  ring_in_force(const ring_in_force&) = delete;
  ring_in_force& operator=(const ring_in_force&) = delete;

 private:
  ring before_;
};

}  // namespace zep::arith
