// SPDX-License-Identifier: GPL-3.0-or-later
// Files of tests.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "base/floors.h"

namespace zep::tests {

// A name for a file that is removed at the end.
class file_name {
 public:
  file_name()
      : path_(std::filesystem::temp_directory_path() /
              ("zep-result-" + std::to_string(::getpid()) +
               ::testing::UnitTest::GetInstance()->current_test_info()->name())) {}
  ~file_name() { std::filesystem::remove(path_); }
  file_name(const file_name&) = delete;
  file_name& operator=(const file_name&) = delete;

  std::string text() const { return path_.string(); }
  std::string contents() const {
    std::ifstream in(path_);
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace zep::tests
