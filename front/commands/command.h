// SPDX-License-Identifier: GPL-3.0-or-later
// The table of commands.
#pragma once

#include <span>
#include <string>

#include "front/commands/invocation.h"

namespace zep::front {

// What a command takes from the interpreter: an identifier with a scheme, any identifier, or
// nothing.
enum class command_kind { nothing, any_identifier, scheme_identifier };

struct command_record {
  // At most 11 characters; matching looks at whole words of 12.
  const char* name;
  command_kind kind;
  // What is typed behind the name, the identifier included, and what the command does, in a line.
  const char* arguments;
  const char* meaning;
  // Carries the command out.
  void (*action)(const invocation& todo);
};

// All commands, in alphabetical order.
extern const std::span<const command_record> command;

// The command with that name; null if there is none.
const command_record* find_command(const std::string& name);

// Prints the names of all commands.
void help();

}  // namespace zep::front
