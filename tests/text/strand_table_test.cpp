// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/strand_table.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zep::tests {
namespace {

std::string line_of(const std::vector<int>& widths, const std::vector<int>& numbers) {
  std::ostringstream out;
  strand_table(widths).line(out, "w_R | ", numbers);
  return out.str();
}

TEST(StrandTable, PadsNumbersToTheWidthOfTheirColumnAndOneMore) {
  EXPECT_EQ(line_of({3, 4, 3}, {1, 22, -3}), "w_R | 1   22   -3  \n");
  EXPECT_EQ(line_of({}, {}), "w_R | \n");
}

TEST(StrandTable, DoesNotCutWhatIsWiderThanItsColumn) {
  EXPECT_EQ(line_of({3, 3}, {1234, 5}), "w_R | 12345   \n");
  EXPECT_EQ(line_of({3, 3}, {12345, 5}), "w_R | 123455   \n");
}

TEST(StrandTable, CountsItsColumnsAboveARule) {
  std::ostringstream out;
  strand_table({3, 3, 3}).head(out);
  EXPECT_EQ(out.str(), "    | 1   2   3   \n------------------\n");
  std::ostringstream wide;
  strand_table({3, 5}).head(wide);
  EXPECT_EQ(wide.str(), "    | 1   2     \n----------------\n");
}

TEST(StrandTable, HasColumnsAsWideAsTheirEntriesButThreeAtLeast) {
  EXPECT_EQ(column_width(0), 3);
  EXPECT_EQ(column_width(999), 3);
  EXPECT_EQ(column_width(1000), 4);
  EXPECT_EQ(column_width(-12), 3);
  EXPECT_EQ(column_width(-123), 4);
}

TEST(StrandTable, LabelsAreConsecutive) {
  EXPECT_EQ(consecutive(3, 2, -1), (std::vector<int>{2, 1, 0}));
  EXPECT_EQ(consecutive(2, -4, 1), (std::vector<int>{-4, -3}));
  EXPECT_TRUE(consecutive(0, 1, 1).empty());
}

}  // namespace
}  // namespace zep::tests
