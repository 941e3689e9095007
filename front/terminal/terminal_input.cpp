// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/terminal_input.h"

#include <iostream>
#include <utility>

#include "base/interrupt.h"
#include "front/terminal/interruption.h"

namespace zep::front {

namespace {

std::string without_blanks_at_its_end(std::string line) {
  line.erase(line.find_last_not_of(" \t") + 1);
  return line;
}

}  // namespace

terminal_input::terminal_input(screen_line& screen, prompter& prompt, const completer& complete)
    : screen_(screen), prompt_(prompt) {
  start_editing(complete);
}

terminal_input::~terminal_input() { end_editing(); }

int terminal_input::sync() {
  setg(nullptr, nullptr, nullptr);
  forget_pasted_lines();
  return 0;
}

// An interrupt that came before the line is awaited counts as well.
typed_line terminal_input::next_line(awaited what) {
  if (take_interrupt()) {
    forget_pasted_lines();
    std::cout << "\n";
    return {typed_line::ending::interrupt, {}};
  }
  typed_line typed = read_line(what, screen_.text());
  screen_.start_anew();
  return typed;
}

terminal_input::int_type terminal_input::underflow() {
  if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
  while (!ended_) {
    const awaited what = prompt_.take();
    std::cout.flush();
    typed_line typed = next_line(what);
    if (typed.how == typed_line::ending::line) {
      line_ = without_blanks_at_its_end(std::move(typed.text));
      if (!line_.empty()) remember_line(line_);
      line_ += '\n';
      setg(line_.data(), line_.data(), line_.data() + line_.size());
      return traits_type::to_int_type(*gptr());
    }
    ended_ = typed.how == typed_line::ending::end_of_input;
    if (!ended_ && what != awaited::command) throw interrupted();
    if (!ended_) prompt_.ask_for_command();
  }
  return traits_type::eof();
}

}  // namespace zep::front
