// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of generators.
#pragma once

#include <cstddef>
#include <vector>

#include "arith/polynomial.h"

namespace zep::points {

// Generators in the order in which the computation that made them stores them.
struct ideal {
  // n zero polynomials.
  explicit ideal(int n) : gen(static_cast<std::size_t>(n)) {}

  int no_of_gens() const { return static_cast<int>(gen.size()); }

  std::vector<polynomial> gen;
};

}  // namespace zep::points
