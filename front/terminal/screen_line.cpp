// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/screen_line.h"

#include <unistd.h>

#include <iostream>
#include <string_view>

namespace zep::front {

last_line::int_type last_line::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char character = traits_type::to_char_type(c);
  xsputn(&character, 1);
  return c;
}

std::streamsize last_line::xsputn(const char* text, std::streamsize count) {
  const std::string_view written(text, static_cast<std::size_t>(count));
  const std::size_t line_end = written.rfind('\n');
  if (line_end != std::string_view::npos) text_.clear();
  // Without a line end, npos + 1 is 0.
  text_ += written.substr(line_end + 1);
  return count;
}

screen_line::screen_line() : output_(std::cout, notes_) {
  if (::isatty(STDERR_FILENO) != 0) errors_.emplace(std::cerr, notes_);
}

}  // namespace zep::front
