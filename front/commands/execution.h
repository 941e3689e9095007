// Carrying a command out.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// Checks the identifier that command c asks for, reports what is wrong with it, or else carries the
// command out. A command that is interrupted leaves the scheme as it was, and lets `interrupted`
// pass. A number outside the table does nothing. `identifier` is an index of the table of
// identifiers, unknown_identifier or no_identifier.
void execute(session& z, int c, int identifier);

}  // namespace zep::front
