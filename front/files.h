// Opening files.
#pragma once

#include <fstream>
#include <string>

#include "front/input.h"

namespace zep {

// Asks for a file name and reads it, one word of any length. Throws end_of_input.
std::string ask_filename(input& in);

// Opens a file for reading; the stream is not open when that can't be done. A folder can't be
// opened, nor can a name with a NUL, which the system would take for its end.
std::ifstream open_for_reading(const std::string& name);

}  // namespace zep
