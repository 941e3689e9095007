// SPDX-License-Identifier: GPL-3.0-or-later
// Where sessions come from.
#pragma once

#include <memory>
#include <streambuf>

#include "front/options.h"
#include "front/session/workspace.h"
#include "front/terminal/screen_line.h"

namespace zep::front {

// True when standard input and standard output are a terminal.
bool at_a_terminal();

// An opened source of a session.
class session_source {
 public:
  // Opens the source. Standard input gets line editing where there is a screen; it offers the names
  // in use, and knows what has been asked for. Workspace and screen must outlive this.
  session_source(const source& s, workspace& shared, screen_line* screen);

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
