// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/neighbour_pairs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_minimal_generators.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

constexpr int no_limit = std::numeric_limits<int>::max();

int counted(const points::order_ideal& X, int enough = no_limit) {
  return neighbour_pairs(X, Can_Lf(X), enough);
}

TEST(NeighbourPairs, AreNoneForOnePointInThePlaneButOneBetweenTheLines) {
  const ring_in_force ring(101, 2);
  // The leading monomials are Y and X.
  EXPECT_EQ(counted(walked({{3, 4}})), 1);
  EXPECT_EQ(counted(walked({})), 0);
}

TEST(NeighbourPairs, OfACompleteIntersectionAreTheOneThatReachesTheTop) {
  const ring_in_force ring(101, 2);
  // X^2 and Y^3: what is left of X^2 Y^3 is X Y^2, the greatest member.
  EXPECT_EQ(counted(walked({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {0, 2}, {1, 2}})), 1);
}

TEST(NeighbourPairsProperty, AreThoseFoundByComparingAllPairs) {
  int most = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const int pairs = static_cast<int>(plain_pairs_of_neighbours(X).size());
    ASSERT_EQ(counted(X), pairs);
    most = std::max(most, pairs);
  });
  EXPECT_GT(most, 100);
}

TEST(NeighbourPairsProperty, AreThoseFoundByComparingAllPairsForRandomSets) {
  for_each_random_set({.seed = 97, .rounds = 20}, [](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    ASSERT_EQ(counted(X), static_cast<int>(plain_pairs_of_neighbours(X).size()));
  });
}

TEST(NeighbourPairsProperty, AreNotCountedBeyondWhatIsEnough) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const int all = counted(X);
    for (const int enough : {0, 1, all / 2, all, all + 1}) {
      ASSERT_EQ(counted(X, enough), std::min(all, enough));
    }
  });
}

TEST(NeighbourPairs, OfMeaninglessPointsBreakNothing) {
  for_each_meaningless_set(
      [](const std::vector<coordinates>& points) { EXPECT_GE(counted(walked(points)), 0); });
}

}  // namespace
}  // namespace zep::tests
