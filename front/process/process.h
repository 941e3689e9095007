// The surroundings of the process.
#pragma once

#include "base/floors.h"

namespace zep::front {

// Makes the surroundings safe for a long session:
// - /dev/null takes the place of a standard descriptor that is closed, so that no file opened later
//   takes its number and receives what is meant for the terminal;
// - a result file that may not grow further, and a pipe that is not read any more, make a write
//   fail, and do not end the process;
// - the stack has all the space that it will need, so that exhausted memory is seen where memory is
//   asked for, and nowhere else.
void prepare_process();

// Writes out what standard output still holds, and returns the exit status: 0, also when whoever
// read the output has gone, but 1 when it can't be written for another reason, which is said on
// standard error.
int finish_output();

}  // namespace zep::front
