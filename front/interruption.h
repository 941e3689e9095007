// Ctrl-C at the terminal.
#pragma once

#include <csignal>

namespace zep {

// From now on an interrupt ends the computation at hand, or what is being typed, instead of the
// process. A second one before the first is taken or dropped ends the process with status 130.
void catch_interrupts();

// True if there has been an interrupt that nobody has taken; takes it.
bool take_interrupt();

// Holds interrupts back while it lives, but for the time that is spent waiting for a key: so none
// comes between looking for one and waiting.
class held_interrupts {
 public:
  held_interrupts();
  ~held_interrupts();
  held_interrupts(const held_interrupts&) = delete;
  held_interrupts& operator=(const held_interrupts&) = delete;

  // Waits until standard input has something to read or has ended, or a signal comes or an
  // interrupt has come that nobody has taken.
  void wait_for_key() const;

 private:
  sigset_t before_{};
};

}  // namespace zep
