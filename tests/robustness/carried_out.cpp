// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/carried_out.h"

#include <cstddef>
#include <iostream>
#include <optional>
#include <sstream>

#include "front/commands/command.h"
#include "front/commands/execution.h"

namespace zep::tests {

namespace {

std::string announcement(const command_record& c) {
  return std::string("\n[carries out ") + c.name + "]\n";
}

std::optional<std::string> read_name(session& z) {
  if (z.typed.at_line_end()) return std::nullopt;
  return z.typed.word(identifier_length);
}

void announce_and_execute(session& z, const command_record& c) {
  const bool takes_identifier = c.kind != command_kind::nothing;
  const std::optional<std::string> name = takes_identifier ? read_name(z) : std::nullopt;
  const bool is_known = name && z.shared.var.find(*name) != nullptr;
  if (!takes_identifier || is_known) std::cout << announcement(c);
  execute(z, c, name);
}

void carry_out_line(session& z) {
  const std::string word = z.typed.word(identifier_length);
  if (const command_record* const c = find_command(word)) {
    announce_and_execute(z, *c);
  } else if (z.shared.var.find(word) != nullptr) {
    execute(z, *find_command("display"), word);
  }
  z.typed.drop_rest_of_line();
}

}  // namespace

void announce_commands(const std::string& session_text) {
  std::istringstream keyboard(session_text);
  workspace shared;
  session z(shared, keyboard);
  try {
    while (!z.quit) carry_out_line(z);
  } catch (const end_of_input&) {
    z.quit = true;
  }
}

void add_announced(const std::string& out, command_set& commands) {
  for (std::size_t c = 0; c < command.size(); ++c) {
    if (out.find(announcement(command[c])) != std::string::npos) commands[c] = true;
  }
}

std::string missing_commands(const command_set& commands) {
  std::string names;
  for (std::size_t c = 0; c < command.size(); ++c) {
    if (!commands[c]) names += std::string(" ") + command[c].name;
  }
  return names;
}

}  // namespace zep::tests
