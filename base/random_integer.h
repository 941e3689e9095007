// SPDX-License-Identifier: GPL-3.0-or-later
// The random generator. Every release draws the same points from the same commands, so the sequence
// is part of the interface.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/floors.h"

namespace zep::base {

// An additive (lagged Fibonacci) generator of table size 55 and lag 24 whose output is scrambled:
// it picks entries of an auxiliary table, which a linear congruential generator keeps refilling,
// and permutes the bytes of what it picked.
class ACG {
 public:
  explicit ACG(std::uint32_t seed);

  // The next 32 random bits.
  std::uint32_t draw();

 private:
  static constexpr std::size_t state_size = 55;
  static constexpr std::size_t lag = 24;
  static constexpr std::size_t auxiliary_size = 256;

  std::array<std::uint32_t, state_size> state_{};
  std::array<std::uint32_t, auxiliary_size> auxiliary_{};
  std::uint32_t congruential_ = 0;
  std::size_t k_ = 0;
  std::size_t j_ = 0;
};

// Integers in the closed interval between two bounds, in either order, drawn from a generator that
// belongs to the caller and must outlive this.
class RandomInteger {
 public:
  RandomInteger(int low, int high, ACG& generator);

  int operator()();

 private:
  std::int64_t low_;
  std::uint32_t width_;
  ACG& generator_;
};

}  // namespace zep::base
