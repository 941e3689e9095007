// SPDX-License-Identifier: GPL-3.0-or-later
// The line of the terminal that the cursor is in.
#pragma once

#include <optional>
#include <ostream>
#include <streambuf>
#include <string>

#include "front/terminal/transcript.h"

namespace zep::front {

// Keeps the end of what is written to it: what stands behind the last line end.
class last_line : public std::streambuf {
 public:
  const std::string& text() const { return text_; }
  void clear() { text_.clear(); }

 protected:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* text, std::streamsize count) override;

 private:
  std::string text_;
};

// Remembers, while it lives, what is on that line: from standard output, and from standard error
// where that is seen at the terminal too.
class screen_line {
 public:
  screen_line();

  const std::string& text() const { return line_.text(); }

  // Takes note that something else has moved the cursor to the start of a line.
  void start_anew() { line_.clear(); }

 private:
  last_line line_;
  std::ostream notes_{&line_};
  doubled_output output_;
  std::optional<doubled_output> errors_;
};

}  // namespace zep::front
