// SPDX-License-Identifier: GPL-3.0-or-later
// Draws what a random session is made of.
#pragma once

#include <cstddef>
#include <random>

#include "tests/draw.h"

namespace zep::tests {

class dice {
 public:
  explicit dice(unsigned seed) : random_(seed) {}

  // A number 0 .. n-1.
  int number_below(int n) { return below(random_, n); }

  // A number low .. high.
  int between(int low, int high) { return low + number_below(high - low + 1); }

  bool one_in(int n) { return number_below(n) == 0; }

  template <class Container>
  auto pick(const Container& list) -> const typename Container::value_type& {
    return list[number_below(static_cast<int>(list.size()))];
  }

 private:
  std::mt19937 random_;
};

}  // namespace zep::tests
