// What a session finds and leaves, besides the ring in force: one run of the program can hold
// several sessions, one after the other, which share it.
#pragma once

#include <cstdint>

#include "base/random_integer.h"
#include "front/session/identifiers.h"
#include "front/session/input.h"

namespace zep::front {

// Upper border of random coordinates at the start.
constexpr int default_range2 = 50;

// The seed of the random points.
constexpr std::uint32_t default_seed = 1234;

struct session {
  // Reads from `in`, which must outlive it; random points follow from the seed.
  explicit session(std::istream& in, std::uint32_t seed = default_seed) : typed(in), gen(seed) {}

  input typed;
  identifier_table var;
  // Set by `exit`, `quit` and the end of the input.
  bool quit = false;
  // Random coordinates lie in [range1, range2]; range1 never changes, range2 stays below p.
  int range1 = 0;
  int range2 = default_range2;
  // Source of all random points. Never seeded anew, so the same commands draw the same points.
  ACG gen;
  // End the program behind the first command that reports an error.
  bool stop_on_error = false;
};

}  // namespace zep::front
