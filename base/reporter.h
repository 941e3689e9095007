// Progress of long computations, on standard error.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::base {

// 1: computations report their progress; 0: they stay quiet.
extern int verbose;

// Writes the text while `verbose` is set.
void report(std::string_view text);

// Writes the progress of one computation while `verbose` is set: a heading, a countdown of numbers
// in square brackets, a line end. Writes nothing otherwise.
class progress {
 public:
  // Writes the heading, which brings its own line end.
  explicit progress(std::string_view heading);

  // Writes "[remaining]".
  void count(int remaining) const;

  // Writes the countdown from n to 1 for what is done at once.
  void count_down(int n) const;

  // Ends the line of the countdown.
  void end_line() const;
};

}  // namespace zep::base
