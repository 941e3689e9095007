// What one run of the program holds besides the ring in force.
#pragma once

#include "front/identifiers.h"
#include "front/input.h"
#include "front/random_integer.h"

namespace zep {

// Upper border of random coordinates at the start.
constexpr int default_range2 = 50;

struct session {
  explicit session(std::istream& in) : typed(in) {}

  input typed;
  identifier_table var;
  // Set by `exit`, `quit` and the end of the input.
  bool quit = false;
  // Random coordinates lie in [range1, range2]; range1 never changes, range2 stays below p.
  int range1 = 0;
  int range2 = default_range2;
  // Source of all random points. Never seeded anew, so the same commands draw the same points.
  ACG gen{1234};
};

}  // namespace zep
