// SPDX-License-Identifier: GPL-3.0-or-later
// Invariants that are checked in the paranoid build, and cost nothing in any other.
#pragma once

#include "base/floors.h"

namespace zep::base {

#ifdef ZEP_PARANOID
constexpr bool paranoid = true;
#else
constexpr bool paranoid = false;
#endif

// Names the invariant on standard error and aborts the process.
[[noreturn]] void invariant_broken(const char* invariant);

// In the paranoid build: aborts unless holds() is true. The condition is not evaluated otherwise.
template <class Condition>
void ensure(const char* invariant, Condition holds) {
  if constexpr (paranoid) {
    if (!holds()) invariant_broken(invariant);
  }
}

}  // namespace zep::base
