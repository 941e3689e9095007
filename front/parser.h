// SPDX-License-Identifier: GPL-3.0-or-later
// The command loop.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// Prints prompts, reads commands and carries them out until one of them, the end of the input, or
// an error that is to stop it, ends the session. A command that is interrupted leaves nothing
// behind.
void parser(session& z);

// Whether an error that has been reported ends the program.
bool has_to_stop(const workspace& shared);

}  // namespace zep::front
