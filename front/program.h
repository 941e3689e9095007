// One run of the program.
#pragma once

#include <istream>

namespace zep {

// Greets, carries out what the input says until `quit` or its end, and takes leave. Starts with the
// default settings.
void run_program(std::istream& in);

}  // namespace zep
