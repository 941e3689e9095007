// Writing a result into a file that the user names.
#pragma once

#include <string>

#include "front/files/files.h"
#include "front/session/error.h"

namespace zep::front {

// Hands the open file to `write_to`, or reports that it can't be opened. True if it was.
template <class Write>
bool into_named_file(const std::string& name, existing_contents existing, Write write_to) {
  result_file file(name, existing);
  if (!file.is_open()) {
    error(error_code::cannot_open_file);
    return false;
  }
  write_to(file.stream());
  file.close();
  return true;
}

}  // namespace zep::front
