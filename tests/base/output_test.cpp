#include "base/output.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Taken before any test changes them.
const int length_at_start = LL;
const int counter_at_start = counter;

TEST(Output, StartsAtColumnZeroOfLinesOfEightyCharacters) {
  EXPECT_EQ(length_at_start, 80);
  EXPECT_EQ(counter_at_start, 0);
}

TEST(Output, LineIsOneDashShorterThanTheLineLength) {
  const ring_in_force ring;
  for (const int length : {80, 79, 40, 2, 1, 200}) {
    set_line_length(length);
    EXPECT_EQ(LL, length);
    ASSERT_EQ(static_cast<int>(Line.size()), length);
    EXPECT_EQ(Line.find_first_not_of('-'), Line.size() - 1);
    EXPECT_EQ(Line.back(), '\n');
  }
}

TEST(Output, LineHasSeventyNineDashesAtTheStandardLength) {
  const ring_in_force ring;
  EXPECT_EQ(Line, std::string(79, '-') + "\n");
}

TEST(Output, LineLengthLeavesTheColumn) {
  const ring_in_force ring;
  counter = 17;
  set_line_length(60);
  EXPECT_EQ(counter, 17);
}

}  // namespace
}  // namespace zep::tests
