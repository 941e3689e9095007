#include <unistd.h>

#include <cerrno>

#include "front/interruption.h"
#include "front/line_editor.h"

namespace zep {

void start_editing(const completer& /*complete*/) {}

// The terminal itself does the editing, and hands over whole lines.
typed_line read_line(const std::string& /*prompt*/) {
  const held_interrupts held;
  std::string text;
  while (true) {
    held.wait_for_key();
    if (take_interrupt()) return {typed_line::ending::interrupt, {}};
    char c = 0;
    const ssize_t count = ::read(STDIN_FILENO, &c, 1);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (count == 1 && c != '\n') {
      text += c;
    } else if (count == 1 || !text.empty()) {
      return {typed_line::ending::line, text};
    } else {
      return {typed_line::ending::end_of_input, {}};
    }
  }
}

void remember_line(const std::string& /*line*/) {}

void end_editing() {}

}  // namespace zep
