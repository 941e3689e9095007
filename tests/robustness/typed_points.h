// SPDX-License-Identifier: GPL-3.0-or-later
// Points as somebody types them.
#pragma once

#include <string>

#include "tests/robustness/dice.h"

namespace zep::tests {

// What the points depend on.
struct typed_space {
  int dimension;
  int characteristic;
  const char* line_end;
};

// That many points, with all their coordinates, behind the question for them; distinct or not. Ends
// with a line end.
std::string typed_points(dice& d, const typed_space& space, int count);

// The same with something in it that is no number, or with too few points or too many.
std::string broken_points(dice& d, const typed_space& space, int count);

}  // namespace zep::tests
