// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/sessions/temporary_folder.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace zep::tests {

temporary_folder::temporary_folder() {
  std::string name = (std::filesystem::temp_directory_path() / "zep-sessions-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), "mkdtemp");
  }
  path_ = name;
}

temporary_folder::~temporary_folder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace zep::tests
