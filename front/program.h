// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the program.
#pragma once

#include <istream>

#include "front/options.h"

namespace zep::front {

// Greets, carries out one session after the other, each until `quit` or its end, and takes leave.
// Starts with the default settings; what a session makes and sets is there in the next one. Returns
// the exit status: 1 when a session can't be opened or an error is to end the program, and then no
// later session is run; otherwise 0. A division by zero ends the process.
int run_program(const options& chosen);

// The same with one session and nothing chosen. Throws division_by_zero where a number that is
// typed brings it about.
void run_program(std::istream& in);

}  // namespace zep::front
