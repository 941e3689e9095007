#include "front/interruption.h"

#include <poll.h>
#include <unistd.h>

#include <csignal>

#include "arith/interrupt.h"

namespace zep {

namespace {

constexpr int ended_by_interrupt = 128 + SIGINT;

volatile std::sig_atomic_t pending = 0;

void on_interrupt(int /*signal*/) {
  if (pending != 0) ::_exit(ended_by_interrupt);
  pending = 1;
  request_interrupt();
}

}  // namespace

void catch_interrupts() {
  struct sigaction action {};
  action.sa_handler = on_interrupt;
  // What is being written goes on where it was.
  action.sa_flags = SA_RESTART;
  static_cast<void>(::sigaction(SIGINT, &action, nullptr));
}

bool take_interrupt() {
  const bool taken = pending != 0;
  pending = 0;
  forget_interrupt();
  return taken;
}

held_interrupts::held_interrupts() {
  sigset_t interrupt;
  ::sigemptyset(&interrupt);
  ::sigaddset(&interrupt, SIGINT);
  ::pthread_sigmask(SIG_BLOCK, &interrupt, &before_);
}

held_interrupts::~held_interrupts() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

void held_interrupts::wait_for_key() const {
  if (pending != 0) return;
  sigset_t let_in = before_;
  ::sigdelset(&let_in, SIGINT);
  pollfd keyboard{STDIN_FILENO, POLLIN, 0};
  static_cast<void>(::ppoll(&keyboard, 1, nullptr, &let_in));
}

}  // namespace zep
