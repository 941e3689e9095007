// SPDX-License-Identifier: GPL-3.0-or-later
// The folder in which a session of the tests reads and writes files.
#pragma once

#include <array>
#include <filesystem>

#include "base/floors.h"

namespace zep::tests {

// Point files of every kind, and names that are no files.
namespace point_file {
// Some points each, in the spaces they are named after.
inline constexpr std::array good = {"plane.pts", "space.pts", "line.pts", "windows.pts",
                                    "four.pts"};
inline constexpr std::array odd = {"equal.pts", "none.pts", "zero.pts", "fractions.pts",
                                   "more.pts"};
inline constexpr std::array bad = {"short.pts",  "words.pts",  "colons.pts", "negative.pts",
                                   "huge.pts",   "binary.pts", "empty.pts",  "dimension.pts",
                                   "number.pts", "slash.pts"};
// Divides by zero.
inline constexpr const char* fatal = "divide.pts";
}  // namespace point_file

// Names that can't be opened to write, and one that takes nothing.
inline constexpr std::array unwritable = {"folder", "missing/result", "loop", "full"};

// Empties the folder and puts the point files, a folder and links into it.
void fill_working_folder(const std::filesystem::path& folder);

// A folder of this process's own, for as long as it lives.
class scratch_folder {
 public:
  scratch_folder();
  ~scratch_folder();
  scratch_folder(const scratch_folder&) = delete;
  scratch_folder& operator=(const scratch_folder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace zep::tests
