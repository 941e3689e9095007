// The table of commands, and carrying one out.
#pragma once

#include <array>
#include <string>

#include "front/session.h"

namespace zep {

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

constexpr int no_of_commands = 67;

// A command's number is its position here. Alphabetical.
extern const std::array<command_record, no_of_commands> command;

// Number of the command that shows an identifier, carried out for an identifier typed alone.
constexpr int display_command = 14;

// Number of the command with that name, or -1.
int find_command(const std::string& name);

// Checks the identifier that command c asks for, reports what is wrong with it, or else carries the
// command out. A command that is interrupted leaves the scheme as it was, and lets `interrupted`
// pass. A number outside the table does nothing. `identifier` is an index of the table,
// unknown_identifier or no_identifier.
void execute(session& z, int c, int identifier);

// Prints the names of all commands.
void help();

}  // namespace zep
