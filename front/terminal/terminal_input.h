// SPDX-License-Identifier: GPL-3.0-or-later
// Lines typed at the terminal, as a stream buffer.
#pragma once

#include <streambuf>
#include <string>

#include "front/terminal/line_editor.h"
#include "front/terminal/prompt.h"
#include "front/terminal/screen_line.h"

namespace zep::front {

// Reads one line after the other with the line editor, which it starts and ends. Blanks at the end
// of a line are dropped: behind a command they would mean that its point set is named in the next
// one. Where a command is awaited, an interrupt clears the line; where something else is, underflow
// throws `interrupted`, which only streams that report bad states by exceptions let pass. Once the
// input has ended it stays ended.
class terminal_input : public std::streambuf {
 public:
  // Reads in the line of the screen what the prompter has asked for; both must outlive this.
  terminal_input(screen_line& screen, prompter& prompt, const completer& complete);
  ~terminal_input() override;
  terminal_input(const terminal_input&) = delete;
  terminal_input& operator=(const terminal_input&) = delete;

 protected:
  int_type underflow() override;
  // Drops what has been typed or pasted already.
  int sync() override;

 private:
  typed_line next_line(awaited what);

  screen_line& screen_;
  prompter& prompt_;
  std::string line_;
  bool ended_ = false;
};

}  // namespace zep::front
