// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/betti_table.h"

#include <gtest/gtest.h>

#include <limits>

#include "points/koszul/subsets.h"
#include "tests/points/betti_tables.h"

namespace zep::tests {
namespace {

// Six points of space without special position.
betti_table six_points_of_space() { return table_of({{1, 0, 0, 0}, {0, 4, 2, 0}, {0, 0, 3, 2}}); }

TEST(BettiTable, StartsWithZeros) {
  const betti_table B(3, -1, 2);
  EXPECT_EQ(B.n(), 3);
  EXPECT_EQ(B.first_row(), -1);
  EXPECT_EQ(B.last_row(), 2);
  for (int r = -1; r <= 2; ++r) EXPECT_EQ(row_of(B, r), (table_row{0, 0, 0, 0}));
}

TEST(BettiTable, HoldsWhatIsSetAndZerosAround) {
  betti_table B(2, 1, 2);
  const std::int64_t large = std::numeric_limits<std::int64_t>::max();
  B.set(0, 1, 5);
  B.set(2, 2, large);
  EXPECT_EQ(B(0, 1), 5);
  EXPECT_EQ(B(2, 2), large);
  EXPECT_EQ(B(-1, 1), 0);
  EXPECT_EQ(B(3, 2), 0);
  EXPECT_EQ(B(0, 0), 0);
  EXPECT_EQ(B(2, 3), 0);
}

TEST(BettiTable, MayHaveNoRows) {
  const betti_table B(2, 3, 2);
  EXPECT_EQ(B.first_row(), 3);
  EXPECT_EQ(B.last_row(), 2);
  EXPECT_EQ(B(0, 3), 0);
  EXPECT_EQ(betti_table(2, 3, -4), B);
}

TEST(BettiTable, EqualsOneWithTheSameRowsAndEntries) {
  const betti_table B = table_of({{1, 2}, {3, 4}});
  EXPECT_EQ(B, table_of({{1, 2}, {3, 4}}));
  EXPECT_NE(B, table_of({{1, 2}, {3, 5}}));
  EXPECT_NE(B, table_of({{1, 2}, {3, 4}}, 1));
  EXPECT_NE(B, table_of({{1, 2}, {3, 4}, {0, 0}}));
}

// Omega has the generators that the last module has, in degrees -1 and 0 where these have 5 and 4.
TEST(BettiOfOmega, IsTheTableReadBackwards) {
  EXPECT_EQ(betti_of_w_R(six_points_of_space()),
            table_of({{2, 3, 0, 0}, {0, 2, 4, 0}, {0, 0, 0, 1}}, -1));
}

TEST(BettiOfOmega, OfItIsTheTableAgain) {
  const betti_table B = six_points_of_space();
  EXPECT_EQ(betti_of_w_R(betti_of_w_R(B)), B);
  const betti_table with_zeros = table_of({{0, 0, 0}, {1, 0, 3}, {0, 0, 0}, {0, 7, 0}}, -2);
  EXPECT_EQ(betti_of_w_R(betti_of_w_R(with_zeros)), with_zeros);
  const betti_table none(2, 3, 2);
  EXPECT_EQ(betti_of_w_R(betti_of_w_R(none)), none);
}

TEST(Regularity, IsTheLastRowThatIsNotZero) {
  EXPECT_EQ(regularity(six_points_of_space()), 2);
  EXPECT_EQ(regularity(table_of({{1, 1}, {0, 1}, {0, 0}, {0, 0}})), 1);
  EXPECT_EQ(regularity(table_of({{1, 1}, {0, 0}}, -3)), -3);
  EXPECT_EQ(regularity(table_of({{0, 0}, {0, 1}, {0, 0}}, -1)), 0);
}

TEST(PropertyN, HoldsUpToTheStepBeforeTheFirstEntryBelowRowOne) {
  EXPECT_EQ(largest_N_p(six_points_of_space()), 1);
  EXPECT_EQ(largest_N_p(table_of({{1, 0, 0, 0}, {0, 5, 5, 0}, {0, 0, 0, 1}})), 2);
  EXPECT_EQ(largest_N_p(table_of({{1, 0, 0, 0}, {0, 3, 0, 0}, {0, 0, 3, 0}, {0, 0, 0, 1}})), 1);
}

TEST(PropertyN, HoldsAlwaysWhereNothingStandsBelowRowOne) {
  EXPECT_EQ(largest_N_p(table_of({{1, 0, 0, 0}, {0, 6, 8, 3}})), 3);
  EXPECT_EQ(largest_N_p(table_of({{1, 0, 0, 0}, {0, 6, 8, 3}, {0, 0, 0, 0}})), 3);
  EXPECT_EQ(largest_N_p(table_of({{1, 2, 1}})), 2);
}

TEST(PropertyN, HoldsNowhereWithOtherGeneratorsThanQuadricsAndLinearForms) {
  EXPECT_EQ(largest_N_p(table_of({{1, 0, 0}, {0, 1, 0}, {0, 1, 2}})), 0);
  EXPECT_EQ(largest_N_p(table_of({{1, 1, 0}, {0, 0, 0}, {0, 1, 1}})), 0);
  EXPECT_EQ(largest_N_p(table_of({{1, 1, 0}, {0, 1, 1}})), 2);
}

TEST(MoreVariables, MultiplyTheTableByTheirKoszulComplex) {
  const betti_table two_points_of_a_line = table_of({{1, 0}, {0, 1}});
  EXPECT_EQ(over_more_variables(two_points_of_a_line, 0), two_points_of_a_line);
  EXPECT_EQ(over_more_variables(two_points_of_a_line, 2), table_of({{1, 2, 1, 0}, {0, 1, 2, 1}}));
  EXPECT_EQ(over_more_variables(table_of({{2, 3}}, -1), 1), table_of({{2, 5, 3}}, -1));
}

TEST(ExpectedBetti, OfPointsOfThePlane) {
  EXPECT_EQ(expected_betti(2, 1), table_of({{1, 2, 1}}));
  EXPECT_EQ(expected_betti(2, 2), table_of({{1, 1, 0}, {0, 1, 1}}));
  EXPECT_EQ(expected_betti(2, 3), table_of({{1, 0, 0}, {0, 3, 2}}));
  EXPECT_EQ(expected_betti(2, 4), table_of({{1, 0, 0}, {0, 2, 0}, {0, 0, 1}}));
  EXPECT_EQ(expected_betti(2, 5), table_of({{1, 0, 0}, {0, 1, 0}, {0, 2, 2}}));
  EXPECT_EQ(expected_betti(2, 6), table_of({{1, 0, 0}, {0, 0, 0}, {0, 4, 3}}));
}

TEST(ExpectedBetti, OfPointsOfALine) {
  EXPECT_EQ(expected_betti(1, 1), table_of({{1, 1}}));
  EXPECT_EQ(expected_betti(1, 3), table_of({{1, 0}, {0, 0}, {0, 1}}));
}

TEST(ExpectedBetti, OfPointsOfSpace) {
  EXPECT_EQ(expected_betti(3, 5), table_of({{1, 0, 0, 0}, {0, 5, 5, 0}, {0, 0, 0, 1}}));
  EXPECT_EQ(expected_betti(3, 6), six_points_of_space());
  EXPECT_EQ(expected_betti(3, 3), table_of({{1, 1, 0, 0}, {0, 3, 5, 2}}));
}

// The Hilbert function of the Artinian reduction, by the differences of min(s, C(n+d,n)).
std::int64_t general_h(int n, int s, int d) {
  const auto H = [&](int e) { return std::min<std::int64_t>(s, binomial(n + e, n)); };
  return H(d) - H(d - 1);
}

TEST(ExpectedBetti, AddUpToTheHilbertFunction) {
  for (int n = 1; n <= 9; ++n) {
    for (int s = 1; s <= 300; s += 1 + s / 40) {
      const betti_table B = expected_betti(n, s);
      ASSERT_GT(general_h(n, s, B.last_row()), 0);
      ASSERT_EQ(general_h(n, s, B.last_row() + 1), 0);
      for (int j = 0; j <= n + B.last_row(); ++j) {
        std::int64_t difference = 0;
        for (int k = 0; k <= n; ++k) {
          difference +=
              (k % 2 == 0 ? 1 : -1) * (B(k, j - k) - binomial(n, k) * general_h(n, s, j - k));
        }
        ASSERT_EQ(difference, 0) << s << " points of P^" << n << ", degree " << j;
      }
    }
  }
}

TEST(ExpectedBetti, HaveNoNeighboursOnADiagonalAndNothingNegative) {
  for (int n = 1; n <= 9; ++n) {
    for (int s = n + 1; s <= 300; s += 1 + s / 40) {
      const betti_table B = expected_betti(n, s);
      for (int r = 0; r <= B.last_row(); ++r) {
        for (int i = 0; i <= n; ++i) {
          ASSERT_GE(B(i, r), 0);
          ASSERT_TRUE(B(i, r) == 0 || B(i - 1, r + 1) == 0) << s << " points of P^" << n;
        }
      }
    }
  }
}

TEST(ExpectedBetti, OfFewPointsAreThoseInTheSpaceThatTheySpan) {
  for (int n = 2; n <= 9; ++n) {
    for (int s = 2; s <= n; ++s) {
      ASSERT_EQ(expected_betti(n, s), over_more_variables(expected_betti(s - 1, s), n + 1 - s));
    }
  }
}

}  // namespace
}  // namespace zep::tests
