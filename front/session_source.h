// Where sessions come from.
#pragma once

#include <memory>
#include <streambuf>

#include "front/options.h"
#include "front/session/identifiers.h"
#include "front/terminal/screen_line.h"

namespace zep::front {

// True when standard input and standard output are a terminal.
bool at_a_terminal();

// An opened source of a session.
class session_source {
 public:
  // Opens the source. Standard input gets line editing where there is a screen; it offers names out
  // of `identifiers`. Both must outlive this.
  session_source(const source& s, const identifier_table& identifiers, screen_line* screen);

  bool is_open() const { return buffer_ != nullptr; }
  // What is typed stands on the screen already.
  bool is_terminal() const { return is_terminal_; }
  // Requires an open source.
  std::streambuf& buffer() { return *buffer_; }

 private:
  std::unique_ptr<std::streambuf> buffer_;
  bool is_terminal_ = false;
};

}  // namespace zep::front
