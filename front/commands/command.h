// The table of commands.
#pragma once

#include <span>
#include <string>

#include "front/session/session.h"

namespace zep::front {

// What a command takes from the interpreter: the identifier of a scheme, of any type, or nothing.
enum class command_kind { nothing = -1, any_identifier = 0, scheme_identifier = scheme_type };

struct command_record {
  // At most 11 characters; matching looks at whole words of 12.
  const char* name;
  command_kind kind;
  // What is typed behind the name, the identifier included, and what the command does, in a line.
  const char* arguments;
  const char* meaning;
  // Carries the command out; the identifier is meaningful where the kind asks for one.
  void (*action)(session& z, int identifier);
};

// All commands, in alphabetical order. A command's number is its position here.
extern const std::span<const command_record> command;

inline int no_of_commands() { return static_cast<int>(command.size()); }

// Number of the command with that name, or -1.
int find_command(const std::string& name);

// Prints the names of all commands.
void help();

}  // namespace zep::front
