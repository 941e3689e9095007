// SPDX-License-Identifier: GPL-3.0-or-later
// What the displays print.
#pragma once

#include <algorithm>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "points/record/scheme.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// What print(stream) prints.
template <class Print>
std::string shown(Print print) {
  std::ostringstream out;
  print(out);
  return out.str();
}

// What a display prints of a result.
template <class Result>
std::string shown(void (*display)(std::ostream&, const Result&), const Result& result) {
  return shown([&](std::ostream& out) { display(out, result); });
}

// What is known about the linear strands of a set of P^3.
struct strand_facts {
  int alpha = 0;
  int sigma = 0;
  std::vector<int> of_I_X = std::vector<int>(3);
  std::vector<int> of_w_R = std::vector<int>(3);
};

// The table of these.
inline std::string shown_table(void (*display)(std::ostream&, const results&),
                               const strand_facts& facts) {
  const ring_in_force ring(101, 3);
  points::order_ideal X = walked({{1, 2, 3}});
  X.H.alpha = facts.alpha;
  X.H.sigma = facts.sigma;
  results known(3);
  known.bu_mo = std::make_shared<const points::order_ideal>(std::move(X));
  known.strands.linres = {facts.of_I_X, facts.of_w_R};
  return shown(display, known);
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
