// SPDX-License-Identifier: GPL-3.0-or-later
// Results as text files, to keep or to use elsewhere.
#pragma once

#include "front/commands/invocation.h"

namespace zep::front {

// Each asks for a file name, opens the file, makes sure that the result exists, and writes it. A
// result that existed already prints Line in place of what its computation prints. Where the file
// can't be opened, that is reported, and nothing is computed. All throw end_of_input.
void putscheme(const invocation& todo);
void putbeta(const invocation& todo);
void putsep(const invocation& todo);
void putGroebner(const invocation& todo);
void putmin(const invocation& todo);
void putA_d(const invocation& todo);

// Writes the whole record as it is displayed, but for the order ideal.
void write(const invocation& todo);

}  // namespace zep::front
