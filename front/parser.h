// The command loop.
#pragma once

#include "front/session.h"

namespace zep {

// Prints prompts, reads commands and carries them out until one of them, or the end of the input,
// ends the session.
void parser(session& z);

}  // namespace zep
