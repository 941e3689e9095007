// SPDX-License-Identifier: GPL-3.0-or-later
// A folder for the files of the runs.
#pragma once

#include <filesystem>

#include "base/floors.h"

namespace zep::tests {

// A new folder, removed with its contents at the end.
class temporary_folder {
 public:
  temporary_folder();
  ~temporary_folder();
  temporary_folder(const temporary_folder&) = delete;
  temporary_folder& operator=(const temporary_folder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace zep::tests
