// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "linalg/row_operations.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Behind a row, where nothing may be looked at.
constexpr std::size_t margin = 16;

TEST(FirstNonzero, FindsEveryPosition) {
  std::mt19937 random(14);
  const ring_in_force ring;
  for (const std::size_t n : {0U, 1U, 7U, 8U, 9U, 15U, 16U, 17U, 31U, 33U, 65U}) {
    for (std::size_t offset = 0; offset < 9; ++offset) {
      for (std::size_t place = 0; place <= n; ++place) {
        // Non-zero elements in front of the row and behind it must not be seen.
        row data(offset + n + margin, Fp8(1));
        for (std::size_t i = 0; i < n; ++i) data[offset + i] = Fp8(0);
        for (std::size_t i = place; i < n; ++i) data[offset + i] = Fp8(below(random, 101));
        if (place < n) data[offset + place] = Fp8(1 + below(random, 100));
        ASSERT_EQ(first_nonzero(const_row_view(data).subspan(offset, n)), place) << "n = " << n;
      }
    }
  }
}

TEST(FirstNonzero, SeesEveryBit) {
  for (std::size_t place = 0; place < 20; ++place) {
    for (const int value : {1, 2, 4, 8, 16, 32, 64, 128}) {
      row data(20);
      data[place] = Fp8(value);
      ASSERT_EQ(first_nonzero(data), place) << value;
    }
  }
}

}  // namespace
}  // namespace zep::tests
