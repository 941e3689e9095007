// SPDX-License-Identifier: GPL-3.0-or-later
// What the command line asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "front/session/workspace.h"

namespace zep::front {

// Where a session comes from.
struct source {
  enum class kind { standard_input, file, commands };
  kind from = kind::standard_input;
  // The file's name; the commands.
  std::string text;
};

struct options {
  // One after the other. At least one.
  std::vector<source> sources;
  // Banner, settings at the start, prompts and farewell.
  bool decorated = true;
  // Repeat each line of the input behind its prompt.
  bool echo = false;
  // End behind the first command that reports an error.
  bool stop_on_error = false;
  // A file that input and output are appended to.
  std::optional<std::string> log;
  std::uint32_t seed = default_seed;
};

// What the command line comes to. There is an exit status when nothing is left to do: help, version
// or command reference have been printed, or something is wrong and standard error says what.
struct command_line {
  std::optional<int> status;
  options chosen;
};

// Reads the command line.
command_line read_command_line(int argc, char** argv);

}  // namespace zep::front
