// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/random_integer.h"

#include <algorithm>
#include <bit>

namespace zep::base {

namespace {

constexpr std::array<std::uint32_t, 32> seed_scrambling = {
    0xbdcc47e5, 0x54aea45d, 0xec0df859, 0xda84637b, 0xc8c6cb4f, 0x35574b01, 0x28260b7d, 0x0d07fdbf,
    0x9faaeeb0, 0x613dd169, 0x5ce2d818, 0x85b9e706, 0xab2469db, 0xda02b0dc, 0x45c60d6e, 0xffe49d10,
    0x7224fea3, 0xf9684fc9, 0xfc7ee074, 0x326ce92a, 0x366d13b5, 0x17aaa731, 0xeb83a675, 0x7781cb32,
    0x4ec7c92d, 0x7f187521, 0x2cf346b4, 0xad13310f, 0xb89cff2b, 0x12164de1, 0xa865168d, 0x32b56cdf};

// Which bytes of the result come from which rotation of the picked word: by 0, 8, 16, 24 bits.
using byte_choice = std::array<std::uint32_t, 4>;
constexpr std::array<byte_choice, 16> byte_choices = {{
    {0xffffffff, 0x00000000, 0x00000000, 0x00000000},
    {0x0000ffff, 0x00ff0000, 0x00000000, 0xff000000},
    {0xff0000ff, 0x0000ff00, 0x00000000, 0x00ff0000},
    {0x00ff00ff, 0x00000000, 0xff00ff00, 0x00000000},
    {0xffff0000, 0x000000ff, 0x00000000, 0x0000ff00},
    {0x00000000, 0x00ff00ff, 0x00000000, 0xff00ff00},
    {0xff000000, 0x00000000, 0x000000ff, 0x00ffff00},
    {0x00000000, 0x00000000, 0x00000000, 0xffffffff},
    {0xff00ff00, 0x00000000, 0x00ff00ff, 0x00000000},
    {0x0000ff00, 0x00000000, 0x00ff0000, 0xff0000ff},
    {0x00000000, 0x00000000, 0xffffffff, 0x00000000},
    {0x00000000, 0x0000ff00, 0xffff0000, 0x000000ff},
    {0x00000000, 0xffffffff, 0x00000000, 0x00000000},
    {0x00ffff00, 0xff000000, 0x00000000, 0x000000ff},
    {0x00000000, 0xff000000, 0x0000ffff, 0x00ff0000},
    {0x00000000, 0xff00ff00, 0x00000000, 0x00ff00ff},
}};

std::uint32_t congruential_step(std::uint32_t u) { return 66049U * u + 3907864577U; }

std::uint32_t first_congruential(std::uint32_t seed) {
  const std::uint32_t scrambled = seed_scrambling[seed % seed_scrambling.size()];
  return seed < seed_scrambling.size() ? scrambled : seed ^ scrambled;
}

std::size_t step_down(std::size_t i, std::size_t size) { return i == 0 ? size - 1 : i - 1; }

}  // namespace

ACG::ACG(std::uint32_t seed) {
  std::uint32_t u = first_congruential(seed);
  for (std::uint32_t& word : state_) word = u = congruential_step(u);
  for (std::uint32_t& word : auxiliary_) word = u = congruential_step(u);
  congruential_ = u;
  k_ = u % state_size;
  j_ = (k_ + lag) % state_size;
}

std::uint32_t ACG::draw() {
  const std::uint32_t r = state_[k_] += state_[j_];
  k_ = step_down(k_, state_size);
  j_ = step_down(j_, state_size);

  std::uint32_t& picked = auxiliary_[(r >> 24U) % auxiliary_size];
  const std::uint32_t x = picked;
  picked = congruential_ = congruential_step(congruential_);

  const byte_choice& choice = byte_choices[(r >> 2U) % byte_choices.size()];
  return (choice[0] & x) | (choice[1] & std::rotr(x, 8)) | (choice[2] & std::rotr(x, 16)) |
         (choice[3] & std::rotr(x, 24));
}

RandomInteger::RandomInteger(int low, int high, ACG& generator)
    : low_(std::min(low, high)),
      width_(static_cast<std::uint32_t>(std::max(low, high) - low_ + 1)),
      generator_(generator) {}

int RandomInteger::operator()() {
  const std::uint32_t bits = generator_.draw();
  // The full range of 2^32 integers has a width that wraps to 0.
  return static_cast<int>(low_ + (width_ == 0 ? bits : bits % width_));
}

}  // namespace zep::base
