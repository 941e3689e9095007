// SPDX-License-Identifier: GPL-3.0-or-later
// The surroundings of the process.
#pragma once

#include "arith/division_by_zero.h"

namespace zep::front {

// Makes the surroundings safe for a long session:
// - /dev/null takes the place of a standard descriptor that is closed, so that no file opened later
//   takes its number and receives what is meant for the terminal;
// - a result file that may not grow further, and a pipe that is not read any more, make a write
//   fail, and do not end the process;
// - the stack has all the space that it will need, so that exhausted memory is seen where memory is
//   asked for, and nowhere else.
void prepare_process();

// Says on standard output what divided by zero, and ends the process with status 1.
[[noreturn]] void end_with(const division_by_zero& fault);

// Writes out what standard output still holds, and returns the exit status: 0, also when whoever
// read the output has gone, but 1 when it can't be written for another reason, which is said on
// standard error.
int finish_output();

}  // namespace zep::front
