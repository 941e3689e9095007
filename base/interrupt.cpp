// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/interrupt.h"

namespace zep::base {

namespace {

// Checks up to the one that is to throw; 0 if none is. Stays 0 but in the paranoid build.
long checks_left = 0;

}  // namespace

volatile std::sig_atomic_t interrupt_requested = 0;

void request_interrupt() noexcept { interrupt_requested = 1; }

void forget_interrupt() noexcept { interrupt_requested = 0; }

void end_computation() {
  forget_interrupt();
  throw interrupted();
}

interrupt_at_check::interrupt_at_check(long k) noexcept { checks_left = paranoid ? k : 0; }

interrupt_at_check::~interrupt_at_check() {
  checks_left = 0;
  forget_interrupt();
}

void count_check() noexcept {
  if (checks_left > 0 && --checks_left == 0) request_interrupt();
}

}  // namespace zep::base
