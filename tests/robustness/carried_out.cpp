#include "tests/robustness/carried_out.h"

#include <iostream>
#include <sstream>

#include "front/commands/command.h"
#include "front/commands/execution.h"
#include "front/commands/settings.h"

namespace zep::tests {

namespace {

std::string announcement(int c) { return std::string("\n[carries out ") + command[c].name + "]\n"; }

int read_identifier(session& z) {
  if (z.typed.at_line_end()) return no_identifier;
  return z.var.find(z.typed.word(identifier_length));
}

void announce_and_execute(session& z, int c) {
  const bool takes_identifier = command[c].kind != command_kind::nothing;
  const int identifier = takes_identifier ? read_identifier(z) : no_identifier;
  if (!takes_identifier || identifier >= 0) std::cout << announcement(c);
  execute(z, c, identifier);
}

void carry_out_line(session& z) {
  const std::string word = z.typed.word(identifier_length);
  const int c = find_command(word);
  const int identifier = z.var.find(word);
  if (c >= 0) {
    announce_and_execute(z, c);
  } else if (identifier >= 0) {
    execute(z, find_command("display"), identifier);
  }
  z.typed.drop_rest_of_line();
}

}  // namespace

void announce_commands(const std::string& session_text) {
  std::istringstream keyboard(session_text);
  session z(keyboard);
  set_defaults(z);
  try {
    while (!z.quit) carry_out_line(z);
  } catch (const end_of_input&) {
    z.quit = true;
  }
}

void add_announced(const std::string& out, command_set& commands) {
  for (int c = 0; c < no_of_commands(); ++c) {
    if (out.find(announcement(c)) != std::string::npos) commands[c] = true;
  }
}

std::string missing_commands(const command_set& commands) {
  std::string names;
  for (int c = 0; c < no_of_commands(); ++c) {
    if (!commands[c]) names += std::string(" ") + command[c].name;
  }
  return names;
}

}  // namespace zep::tests
