// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/output.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>
#include <string>

namespace zep::tests {
namespace {

std::string number(int n) {
  std::array<char, longest_number> room{};
  return {room.data(), write_number(room.data(), n)};
}

TEST(Output, HasLinesOfEightyCharacters) { EXPECT_EQ(LL, 80); }

TEST(Output, LineIsOneDashShorterThanTheLineLength) {
  ASSERT_EQ(static_cast<int>(Line.size()), LL);
  EXPECT_EQ(Line.find_first_not_of('-'), Line.size() - 1);
  EXPECT_EQ(Line.back(), '\n');
}

TEST(Output, LineHasSeventyNineDashes) { EXPECT_EQ(Line, std::string(79, '-') + "\n"); }

TEST(Output, NumbersAreWrittenInDecimalDigits) {
  for (const int n : {0, 7, 10, 251, -1, -32768, 123456789}) {
    EXPECT_EQ(number(n), std::to_string(n));
  }
}

TEST(Output, EveryNumberFitsTheRoomThatIsAskedFor) {
  for (const int n : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(number(n), std::to_string(n));
  }
  EXPECT_EQ(number(std::numeric_limits<int>::min()).size(), longest_number);
}

TEST(Output, WritesNothingBehindANumber) {
  std::array<char, longest_number> room{};
  room.fill('#');
  EXPECT_EQ(write_number(room.data(), -42), room.data() + 3);
  EXPECT_EQ(std::string(room.data(), room.size()), "-42" + std::string(longest_number - 3, '#'));
}

}  // namespace
}  // namespace zep::tests
