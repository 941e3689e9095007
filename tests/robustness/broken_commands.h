// SPDX-License-Identifier: GPL-3.0-or-later
// What is typed wrong.
#pragma once

#include "tests/robustness/session_draft.h"

namespace zep::tests {

// A command that is misspelt, or whose arguments are missing, unknown or bad.
void broken_command(session_draft& s);

// Bytes of all kinds.
void garbage(session_draft& s);

// A word or a line that never seems to end.
void long_words(session_draft& s);

}  // namespace zep::tests
