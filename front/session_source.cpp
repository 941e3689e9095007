// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session_source.h"

#include <unistd.h>

#include <ios>
#include <sstream>
#include <string>

#include "front/commands/completion.h"
#include "front/files/descriptor_buffer.h"
#include "front/files/open_file.h"
#include "front/terminal/interruption.h"
#include "front/terminal/standard_input.h"
#include "front/terminal/terminal_input.h"

namespace zep::front {

namespace {

std::unique_ptr<std::streambuf> file_buffer(const std::string& name) {
  auto file = std::make_unique<descriptor_reader>(open_source(name));
  if (!file->is_open()) return nullptr;
  return file;
}

std::unique_ptr<std::streambuf> keyboard(workspace& shared, screen_line& screen) {
  catch_interrupts();
  return std::make_unique<terminal_input>(
      screen, shared.prompt,
      [&](awaited what, const std::string& before) { return complete(shared.var, what, before); });
}

}  // namespace

bool at_a_terminal() { return ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0; }

session_source::session_source(const source& s, workspace& shared, screen_line* screen) {
  switch (s.from) {
    case source::kind::standard_input:
      is_terminal_ = screen != nullptr;
      if (is_terminal_) {
        buffer_ = keyboard(shared, *screen);
      } else {
        buffer_ = std::make_unique<standard_input>();
      }
      break;
    case source::kind::file:
      buffer_ = file_buffer(s.text);
      break;
    case source::kind::commands:
      buffer_ = std::make_unique<std::stringbuf>(s.text, std::ios::in);
      break;
  }
}

}  // namespace zep::front
