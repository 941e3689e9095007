// SPDX-License-Identifier: GPL-3.0-or-later
// Editing lines at the terminal: what a library does, or without one, the terminal itself.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "front/terminal/prompt.h"

namespace zep::front {

// What a word may become.
struct completions {
  std::vector<std::string> words;
  // Names of files that exist, in place of words.
  bool files = false;
};

// What the word behind `before` may become, on a line where this is awaited. Words that do not go
// on from what is typed of it are left out later.
using completer = std::function<completions(awaited what, const std::string& before)>;

struct typed_line {
  enum class ending { line, end_of_input, interrupt };
  ending how;
  // Without its end; empty unless there is a line.
  std::string text;
};

// Makes ready for reading lines from the terminal. There is one editor in a process.
void start_editing(const completer& complete);

// Reads a line where this is awaited, and brings its end to the screen. What stands before it on
// its line of the screen is there already: the prompt, unless prompts are off, and perhaps more. An
// interrupt ends it. Requires interrupts to be caught.
typed_line read_line(awaited what, const std::string& before_it);

// Drops what was pasted and has not been handed over as a line. (Pasted lines are handed over one
// by one.)
void forget_pasted_lines();

// Offers a line again when an earlier one is asked for.
void remember_line(const std::string& line);

// Forgets all lines, and gives the terminal back as it was.
void end_editing();

}  // namespace zep::front
