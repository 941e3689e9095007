// SPDX-License-Identifier: GPL-3.0-or-later
// Writing a result into a file that the user names.
#pragma once

#include <string>

#include "front/files/files.h"
#include "front/session/session.h"

namespace zep::front {

// Asks for a file name and reads it, one word of any length. Throws end_of_input.
std::string ask_filename(session& z);

// Hands the open file to `write_to`, or complains that it can't be opened. True if it was.
template <class Write>
bool into_named_file(complaints& wrong, const std::string& name, existing_contents existing,
                     Write write_to) {
  result_file file(name, existing);
  if (!file.is_open()) {
    wrong.error(error_code::cannot_open_file);
    return false;
  }
  write_to(file.stream());
  file.close();
  return true;
}

// Asks for the name first; what the file held is dropped.
template <class Write>
bool into_file(session& z, Write write_to) {
  const std::string name = ask_filename(z);
  return into_named_file(z.shared.wrong, name, existing_contents::drop, write_to);
}

}  // namespace zep::front
