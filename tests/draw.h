// SPDX-License-Identifier: GPL-3.0-or-later
// Random data, the same in every run.
#pragma once

#include <random>

#include "base/floors.h"

namespace zep::tests {

// A number 0 .. n-1. Unlike the distributions of the library, the same with every compiler.
inline int below(std::mt19937& random, int n) {
  return static_cast<int>(random() % static_cast<std::mt19937::result_type>(n));
}

}  // namespace zep::tests
