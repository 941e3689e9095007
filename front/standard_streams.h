// The three standard descriptors.
#pragma once

namespace zep {

// Opens /dev/null in place of a standard descriptor that is closed, so that no file opened later
// takes its number and receives what is meant for the terminal.
void open_closed_descriptors();

}  // namespace zep
