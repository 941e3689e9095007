// SPDX-License-Identifier: GPL-3.0-or-later
// Commands as somebody types them who knows ZEP: their arguments are good most of the time.
#pragma once

#include "tests/robustness/session_draft.h"

namespace zep::tests {

// Any command of the table, with a set of the session where it wants one.
void any_command(session_draft& s);

// A command that enters a set, reads one or draws one.
void point_set(session_draft& s);

void identifier_alone(session_draft& s);

// More sets than there is room for, and some commands behind them.
void fill_the_table(session_draft& s);

}  // namespace zep::tests
