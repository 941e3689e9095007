// Ending a computation from outside.
//
// Whoever wants that - the user at the terminal, who presses Ctrl-C - requests it; the computation
// under way finds the request at its next check and ends by an exception. Everything that takes
// time has checks: one for each row, pair, member, subset, generator or point that is worked on or
// written, none in the loops over their elements, so that they cost nothing that can be measured
// and even with thousands of points follow each other within hundredths of a second.
//
// A computation keeps everything in locals until it has succeeded and changes globals through
// guards only, so any check may throw. It stores without a check in between. A command may be made
// of several computations; what those before the interrupted one have stored is taken back with a
// `results_before`.
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

// For tests of the paranoid build, where checks are counted: requests an interrupt at the k-th
// check from now on, k >= 1; at none for k = 0. Does nothing in other builds.
void interrupt_at_check(long k) noexcept;
void count_check() noexcept;

// The check.
inline void heed_interrupt() {
  if constexpr (paranoid) count_check();
  if (interrupt_requested != 0) [[unlikely]]
    end_computation();
}

}  // namespace zep::base
