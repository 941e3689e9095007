// SPDX-License-Identifier: GPL-3.0-or-later
// What the user types: the one place that reads words and numbers and knows malformed from ended.
#pragma once

#include <iosfwd>
#include <string>

#include "arith/Fp8.h"

namespace zep::front {

// The input ended where more was wanted. Whoever reads lets it pass; the command being read is
// given up on the way out.
struct end_of_input {};

// Something else stands where a number was wanted. What fitted has been taken, the rest is next.
struct malformed_number {};

// Reads from a stream that belongs to the caller and must outlive the reader. White space is blank,
// tab, line feed, vertical tab, form feed and carriage return.
class input {
 public:
  explicit input(std::istream& in) : in_(in) {}

  // Words without a limit of their own have none.
  static constexpr int any_length = -1;

  // Skips white space, line ends included, and takes characters up to white space or `length`; the
  // rest of a longer word stays. Throws end_of_input if there is no word.
  std::string word(int length = any_length);

  // A number behind white space. Throw malformed_number and end_of_input.
  int integer();
  Fp8 coefficient();

  // An integer, or `otherwise` where something malformed stands. Throws end_of_input.
  int integer_or(int otherwise);

  // Takes one character, whatever it is. Throws end_of_input.
  void skip_character();

  // True when the next character is a line end. Throws end_of_input if there is none.
  bool at_line_end();

  // Skips white space up to the line end. True when something else comes first.
  bool line_goes_on();

  // Takes the rest of the line, but not its line end, and hands it on to `out`, or drops it.
  void copy_rest_of_line(std::ostream& out);
  void drop_rest_of_line();

  // Drops what has been typed already, and makes the stream usable again.
  void forget();

 private:
  int peek();
  void settle();

  std::istream& in_;
};

}  // namespace zep::front
