// SPDX-License-Identifier: GPL-3.0-or-later
// Carrying a command out.
#pragma once

#include <optional>
#include <string>

#include "front/commands/command.h"

namespace zep::front {

// Looks for the identifier that the command asks for, complains of what is wrong with it, or else
// carries the command out. `name` is the word typed behind the command, none if there is none. A
// command that is interrupted leaves the scheme as it was, and lets `interrupted` pass.
void execute(session& z, const command_record& todo, const std::optional<std::string>& name);

}  // namespace zep::front
