// What the displays print.
#pragma once

#include <algorithm>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "points/record/scheme.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

using display = void (*)(std::ostream&, scheme&);

inline std::string shown(display show, scheme& X) {
  const silence quiet;
  std::ostringstream out;
  show(out, X);
  return out.str();
}

// The same on a set on which nothing has been computed.
inline std::string shown(display show, const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  return shown(show, X);
}

// What is in the record of a set of P^3 about its linear strands.
struct strand_numbers {
  int alpha = 0;
  int sigma = 0;
  std::vector<int> of_I_X = std::vector<int>(3);
  std::vector<int> of_w_R = std::vector<int>(3);
};

// The table of these.
inline std::string shown_table(display show, const strand_numbers& numbers) {
  const ring_in_force ring(101, 3);
  scheme X = make_set({{1, 2, 3}});
  X.alpha = numbers.alpha;
  X.sigma = numbers.sigma;
  X.linres = {numbers.of_I_X, numbers.of_w_R};
  return shown(show, X);
}

// How the first lines of long polynomials end, where the column at which they were begun shows.
struct line_ends {
  // Lines that could not have been longer, and breaks before terms that just did not fit.
  int full = 0;
  int tight = 0;
};

// Counts the first lines of broken polynomials in a list of them; each begins with its label. False
// when a line is broken too early or too late.
inline bool breaks_where_it_must(const std::string& text, line_ends& seen) {
  const std::size_t end = 79;
  bool right = true;
  std::string above;
  std::istringstream lines(text);
  for (std::string row; std::getline(lines, row);) {
    if (row.starts_with(" + ") || row.starts_with(" - ")) {
      const std::size_t term = std::min(row.find(' ', 3), row.size());
      right = right && above.size() < end && above.size() + term >= end;
      if (above.find('=') != std::string::npos) {
        seen.full += above.size() + 1 == end ? 1 : 0;
        seen.tight += above.size() + term == end ? 1 : 0;
      }
    }
    above = row;
  }
  return right;
}

}  // namespace zep::tests
