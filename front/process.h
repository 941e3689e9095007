// The surroundings of the process.
#pragma once

namespace zep {

// Makes the surroundings safe for a long session:
// - /dev/null takes the place of a standard descriptor that is closed, so that no file opened later
//   takes its number and receives what is meant for the terminal;
// - a result file that may not grow further is a failed write, and not the end of the process.
void prepare_process();

}  // namespace zep
