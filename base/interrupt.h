// SPDX-License-Identifier: GPL-3.0-or-later
// Ending a computation from outside.
//
// Whoever wants that - the user at the terminal, who presses Ctrl-C - requests it; the computation
// under way finds the request at its next check and ends by an exception. Everything that takes
// time has checks: one for each row, pair, member, subset, generator or point that is worked on or
// written, none in the loops over their elements, so that they cost nothing that can be measured
// and even with thousands of points follow each other within hundredths of a second.
//
// A computation keeps everything in locals until it has succeeded and changes nothing that outlives
// it but through guards, so any check may throw. What a command has made before it was interrupted
// is taken back by whoever remembers it.
#pragma once

#include <csignal>

#include "base/paranoid.h"

namespace zep::base {

// Thrown by a check when an interrupt was requested. It is no std::exception: nothing went wrong.
struct interrupted {};

// True from a request to the check that finds it.
extern volatile std::sig_atomic_t interrupt_requested;

// Lets the next check throw. May be called from a signal handler.
void request_interrupt() noexcept;

// Withdraws a request that no check has found: it was meant for what is over already.
void forget_interrupt() noexcept;

// Forgets the request and throws `interrupted`.
[[noreturn]] void end_computation();

// For tests of the paranoid build, where checks are counted: while it lives, an interrupt comes at
// the k-th check from its beginning on, k >= 1; none for k = 0. Does nothing in other builds. There
// is one at a time.
class interrupt_at_check {
 public:
  explicit interrupt_at_check(long k) noexcept;
  ~interrupt_at_check();
  interrupt_at_check(const interrupt_at_check&) = delete;
  interrupt_at_check& operator=(const interrupt_at_check&) = delete;
};

// Counts a check for interrupt_at_check.
void count_check() noexcept;

// The check.
inline void heed_interrupt() {
  if constexpr (paranoid) count_check();
  if (interrupt_requested != 0) [[unlikely]]
    end_computation();
}

}  // namespace zep::base
