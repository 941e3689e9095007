// SPDX-License-Identifier: GPL-3.0-or-later
// The commands in a list, made from the table of commands.
#pragma once

#include <iosfwd>

#include "base/floors.h"

namespace zep::front {

// Prints each command on a line: its name and what is typed behind it, then what it does.
void command_reference(std::ostream& out);

}  // namespace zep::front
