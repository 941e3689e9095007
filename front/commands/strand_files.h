// SPDX-License-Identifier: GPL-3.0-or-later
// Linear strands as text files.
#pragma once

#include "front/commands/invocation.h"

namespace zep::front {

// Each asks for a file name and opens the file, or reports that it can't be opened; then nothing is
// computed. All throw end_of_input. Nothing is printed afterwards.

// Write generators and syzygies, level by level under headings, and leave the numbers in the
// scheme; the last one for I_X, then for w_R.
void putlinid(const invocation& todo);
void putlinom(const invocation& todo);
void putlinres(const invocation& todo);

// Write the syzygies of I_X, level by level, and the linear relations of w_R.
void putlinsyz(const invocation& todo);
void putlinomsyz(const invocation& todo);

// Write the tables as they are; compute nothing.
void writelinid(const invocation& todo);
void writelinom(const invocation& todo);
void writelinres(const invocation& todo);

}  // namespace zep::front
