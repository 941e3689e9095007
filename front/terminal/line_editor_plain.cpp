// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/interruption.h"
#include "front/terminal/line_editor.h"

namespace zep::front {

void start_editing(const completer& /*complete*/) {}

// The terminal itself does the editing, and hands over whole lines.
typed_line read_line(awaited /*what*/, const std::string& /*before_it*/) {
  const held_interrupts held;
  std::string text;
  while (true) {
    char key = 0;
    const key_event event = held.await_key(key);
    if (take_interrupt()) return {typed_line::ending::interrupt, {}};
    if (event == key_event::key && key != '\n') {
      text += key;
    } else if (event == key_event::key || (event == key_event::end_of_input && !text.empty())) {
      return {typed_line::ending::line, text};
    } else if (event == key_event::end_of_input) {
      return {typed_line::ending::end_of_input, {}};
    }
  }
}

void forget_pasted_lines() {}

void remember_line(const std::string& /*line*/) {}

void end_editing() {}

}  // namespace zep::front
