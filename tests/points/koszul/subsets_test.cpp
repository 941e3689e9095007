// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/subsets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "base/interrupt.h"

namespace zep::tests {
namespace {

TEST(Subsets, AreBits) {
  const subset T = with(with(single(0), 3), 26);
  EXPECT_EQ(T, 1U + 8U + (1U << 26U));
  EXPECT_EQ(with(T, 3), T);
  EXPECT_EQ(without(T, 3), single(0) | single(26));
  EXPECT_EQ(without(T, 5), T);
  EXPECT_TRUE(contains(T, 26));
  EXPECT_FALSE(contains(T, 25));
  EXPECT_EQ(size(T), 3);
  EXPECT_EQ(greatest(T), 26);
  EXPECT_EQ(least(T), 0);
  EXPECT_EQ(least(single(26)), 26);
}

TEST(Subsets, OfNothingHaveNoGreatestElement) {
  EXPECT_EQ(greatest(0), -1);
  EXPECT_EQ(size(0), 0);
  EXPECT_FALSE(contains(0, 0));
}

TEST(Subsets, CountWhatIsSmallerWhetherTheElementIsThereOrNot) {
  const subset T = with(with(single(1), 3), 26);
  EXPECT_EQ(no_of_smaller(T, 0), 0);
  EXPECT_EQ(no_of_smaller(T, 1), 0);
  EXPECT_EQ(no_of_smaller(T, 2), 1);
  EXPECT_EQ(no_of_smaller(T, 26), 2);
}

TEST(Binomial, FollowsPascal) {
  for (int n = 1; n <= 60; ++n) {
    EXPECT_EQ(binomial(n, 0), 1);
    EXPECT_EQ(binomial(n, n), 1);
    for (int k = 1; k < n; ++k) {
      ASSERT_EQ(binomial(n, k), binomial(n - 1, k - 1) + binomial(n - 1, k)) << n << " " << k;
    }
  }
  EXPECT_EQ(binomial(0, 0), 1);
  EXPECT_EQ(binomial(27, 13), 20058300);
}

TEST(Binomial, IsZeroOutside) {
  EXPECT_EQ(binomial(5, -1), 0);
  EXPECT_EQ(binomial(5, 6), 0);
  EXPECT_EQ(binomial(0, 1), 0);
  EXPECT_EQ(binomial(-1, 0), 0);
  EXPECT_EQ(binomial(-2, -1), 0);
}

TEST(Subsets, OfFourByTwo) {
  EXPECT_EQ(subsets(4, 2), (std::vector<subset>{0b0011, 0b0101, 0b0110, 0b1001, 0b1010, 0b1100}));
}

TEST(Subsets, AreAllOfTheirSizeAscendingAtTheirPositions) {
  for (int n = 0; n <= 11; ++n) {
    for (int i = 0; i <= n; ++i) {
      std::vector<subset> expected;
      for (subset T = 0; T < 1U << n; ++T) {
        if (size(T) == i) expected.push_back(T);
      }
      const std::vector<subset> all = subsets(n, i);
      ASSERT_EQ(all, expected) << n << " " << i;
      for (std::size_t k = 0; k < all.size(); ++k) ASSERT_EQ(position_of(all[k]), k);
    }
  }
}

TEST(Subsets, OfAllVariablesThatThereCanBe) {
  const int n = max_variables;
  for (const int i : {0, 1, 2, 3, n - 2, n - 1, n}) {
    const std::vector<subset> all = subsets(n, i);
    ASSERT_EQ(static_cast<std::int64_t>(all.size()), binomial(n, i));
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end()));
    EXPECT_EQ(all.back(), ((1U << i) - 1) << (n - i));
    for (std::size_t k = 0; k < all.size(); ++k) {
      ASSERT_EQ(size(all[k]), i);
      ASSERT_LT(greatest(all[k]), n);
      ASSERT_EQ(position_of(all[k]), k);
    }
  }
}

TEST(Subsets, OfFewerElementsComeFirst) {
  const std::vector<subset> small = subsets(6, 3);
  const std::vector<subset> large = subsets(9, 3);
  EXPECT_TRUE(std::equal(small.begin(), small.end(), large.begin()));
}

TEST(Subsets, AreNoneOutside) {
  EXPECT_TRUE(subsets(4, -1).empty());
  EXPECT_TRUE(subsets(4, 5).empty());
  EXPECT_TRUE(subsets(0, 1).empty());
  EXPECT_EQ(subsets(0, 0), std::vector<subset>{0});
}

TEST(Subsets, AreNotListedToTheEndAfterAnInterrupt) {
  request_interrupt();
  EXPECT_THROW(subsets(20, 10), interrupted);
}

}  // namespace
}  // namespace zep::tests
