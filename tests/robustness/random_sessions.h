// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions that nobody would type, and some that somebody would.
#pragma once

#include <string>

#include "base/floors.h"

namespace zep::tests {

// Session number `seed`: up to 60 commands, all kinds of arguments for them, good and broken ways
// to enter points, odd bytes, and ends where nobody expects them. What it computes is small. Its
// files are those of working_folder.h and those that it writes itself; it opens none outside its
// folder.
std::string random_session(unsigned seed);

}  // namespace zep::tests
