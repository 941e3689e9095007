// SPDX-License-Identifier: GPL-3.0-or-later
// Irregular numbers, the same in every run and with every compiler.
#pragma once

#include <cstdint>

#include "base/floors.h"

namespace zep::tests {

// A counter with well mixed bits. Unlike those of a linear congruence, the low bits are as
// irregular as the high ones, and numbers that follow each other show no pattern as coordinates.
class irregular_numbers {
 public:
  explicit irregular_numbers(std::uint64_t start) : state_(start) {}

  // The next number 0 .. n-1.
  int below(int n) { return static_cast<int>(next() % static_cast<std::uint64_t>(n)); }

 private:
  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }

  std::uint64_t state_;
};

}  // namespace zep::tests
