// SPDX-License-Identifier: GPL-3.0-or-later
// What a word at the terminal may become.
#pragma once

#include <string>

#include "front/session/identifiers.h"
#include "front/terminal/line_editor.h"
#include "front/terminal/prompt.h"

namespace zep::front {

// Where a command is awaited: its name or an identifier, behind a command that takes one an
// identifier, and behind that a file name if the command asks for one. Where a file name is
// awaited, a file name; elsewhere nothing.
completions complete(const identifier_table& identifiers, awaited what, const std::string& before);

}  // namespace zep::front
