#include "base/interrupt.h"

namespace zep::base {

namespace {

// Checks up to the one that is to throw; 0 if none is.
long checks_left = 0;

}  // namespace

volatile std::sig_atomic_t interrupt_requested = 0;

void request_interrupt() noexcept { interrupt_requested = 1; }

void forget_interrupt() noexcept { interrupt_requested = 0; }

void end_computation() {
  forget_interrupt();
  throw interrupted();
}

void interrupt_at_check(long k) noexcept { checks_left = k; }

void count_check() noexcept {
  if (checks_left > 0 && --checks_left == 0) request_interrupt();
}

}  // namespace zep::base
