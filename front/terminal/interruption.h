// SPDX-License-Identifier: GPL-3.0-or-later
// Ctrl-C at the terminal.
#pragma once

#include <csignal>

#include "base/floors.h"

namespace zep::front {

// From now on an interrupt ends the computation at hand, or what is being typed, instead of the
// process. A second one before the first is taken or dropped ends the process with status 130.
void catch_interrupts();

// True if there has been an interrupt that nobody has taken; takes it.
bool take_interrupt();

// What ends waiting for a key.
enum class key_event { key, end_of_input, signal };

// Holds interrupts back while it lives, and the signal that the process goes on, but for the time
// that is spent waiting for a key: so none comes between looking for one and waiting.
class held_interrupts {
 public:
  held_interrupts();
  ~held_interrupts();
  held_interrupts(const held_interrupts&) = delete;
  held_interrupts& operator=(const held_interrupts&) = delete;

  // Waits for the next key of standard input, for its end or for a signal. An interrupt that has
  // come before and that nobody has taken counts as a signal.
  key_event await_key(char& key) const;

 private:
  sigset_t before_{};
};

}  // namespace zep::front
