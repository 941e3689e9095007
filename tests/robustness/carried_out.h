// SPDX-License-Identifier: GPL-3.0-or-later
// Which commands a session carries out.
#pragma once

#include <string>
#include <vector>

#include "base/floors.h"

namespace zep::tests {

// Whether a command is in it, by its number.
using command_set = std::vector<bool>;

// Carries the session out as the program does. In what it prints, an announcement precedes each
// command that gets the identifier it asks for, if it asks for one.
void announce_commands(const std::string& session);

// Adds the commands announced there.
void add_announced(const std::string& out, command_set& commands);

// Names of the commands that are missing, with blanks between them.
std::string missing_commands(const command_set& commands);

}  // namespace zep::tests
