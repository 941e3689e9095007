// SPDX-License-Identifier: GPL-3.0-or-later
// What the user did wrong.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::front {

// Numbers of user errors.
enum class error_code {
  cannot_open_file = 30,
  different_dimensions = 31,
  unknown_word = 102,
  needs_identifier = 104,
  not_alphanumeric = 105,
  unknown_identifier = 107,
  wrong_type = 108,
  memory_exceeded = 110,
  already_exists = 111
};

// Tells the user what was wrong, on standard output, and counts.
class complaints {
 public:
  // Prints the text of a user error. cannot_open_file goes on with the text of
  // different_dimensions, and that with the text of unknown_word.
  void error(error_code code);

  // Prints the text of an error that has no number.
  void complain(std::string_view text);

  // For an error whose text is printed elsewhere.
  void count() { ++number_; }

  // Number of errors so far.
  int number() const { return number_; }

 private:
  int number_ = 0;
};

}  // namespace zep::front
