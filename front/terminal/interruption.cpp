// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/interruption.h"

#include <fcntl.h>
#include <sys/select.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "base/interrupt.h"

namespace zep::front {

namespace {

constexpr int ended_by_interrupt = 128 + SIGINT;

volatile std::sig_atomic_t pending = 0;

void on_interrupt(int /*signal*/) {
  if (pending != 0) ::_exit(ended_by_interrupt);
  pending = 1;
  request_interrupt();
}

// The terminal, opened once more. An interrupt takes away what has been typed, perhaps between a
// key being seen and being read; so reading must not wait, and others who have the terminal must
// not notice.
int keyboard() {
  static const int descriptor = [] {
    const char* const name = ::ttyname(STDIN_FILENO);
    const int opened =
        name != nullptr ? ::open(name, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC) : -1;
    // What waits below knows small numbers only.
    return opened >= 0 && opened < FD_SETSIZE ? opened : STDIN_FILENO;
  }();
  return descriptor;
}

sigset_t held_signals() {
  sigset_t held;
  // Macros on some systems, which stand in no namespace.
  sigemptyset(&held);
  sigaddset(&held, SIGINT);
  sigaddset(&held, SIGCONT);
  return held;
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
  const sigset_t held = held_signals();
  ::pthread_sigmask(SIG_BLOCK, &held, &before_);
}

held_interrupts::~held_interrupts() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

key_event held_interrupts::await_key(char& key) const {
  if (pending != 0) return key_event::signal;
  sigset_t let_in = before_;
  sigdelset(&let_in, SIGINT);
  sigdelset(&let_in, SIGCONT);
  fd_set waiting;
  FD_ZERO(&waiting);
  FD_SET(keyboard(), &waiting);
  if (::pselect(keyboard() + 1, &waiting, nullptr, nullptr, nullptr, &let_in) < 0) {
    return key_event::signal;
  }
  const ssize_t count = ::read(keyboard(), &key, 1);
  if (count == 1) return key_event::key;
  const bool gone = count < 0 && (errno == EAGAIN || errno == EINTR);
  return gone ? key_event::signal : key_event::end_of_input;
}

}  // namespace zep::front
