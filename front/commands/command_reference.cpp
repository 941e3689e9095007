// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/command_reference.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "front/commands/command.h"

namespace zep::front {

namespace {

std::string usage(const command_record& c) {
  const std::string arguments = c.arguments;
  return arguments.empty() ? c.name : std::string(c.name) + " " + arguments;
}

}  // namespace

void command_reference(std::ostream& out) {
  std::size_t widest = 0;
  for (const command_record& c : command) widest = std::max(widest, usage(c).size());
  for (const command_record& c : command) {
    const std::string left = usage(c);
    out << left << std::string(widest + 2 - left.size(), ' ') << c.meaning << "\n";
  }
}

}  // namespace zep::front
