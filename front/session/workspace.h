// SPDX-License-Identifier: GPL-3.0-or-later
// What sessions share: one run of the program can hold several, one after the other.
#pragma once

#include <cstdint>

#include "arith/ring_in_force.h"
#include "base/random_integer.h"
#include "front/session/error.h"
#include "front/session/identifiers.h"
#include "front/terminal/prompt.h"
#include "front/terminal/terminal_reporter.h"

namespace zep::front {

// Upper border of random coordinates at the start.
inline constexpr int default_range2 = 50;

// The seed of the random points.
inline constexpr std::uint32_t default_seed = 1234;

// The ring, which commands change, the point sets, and everything else that one session leaves to
// the next. While it lives, its ring is in force; at the start, the default one.
struct workspace {
  // Random points follow from the seed.
  explicit workspace(std::uint32_t seed = default_seed) : gen(seed) {}

  ring_in_force in_force{ring()};
  prompter prompt;
  terminal_reporter report;
  complaints wrong;
  identifier_table var;
  // Random coordinates lie in [range1, range2]; range1 never changes, range2 stays below p.
  int range1 = 0;
  int range2 = default_range2;
  // Source of all random points. Never seeded anew, so the same commands draw the same points.
  ACG gen;
  // End the program behind the first command that reports an error.
  bool stop_on_error = false;
};

}  // namespace zep::front
