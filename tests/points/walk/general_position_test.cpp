// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/general_position.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

TEST(GeneralPosition, HoldsWhenOneSubsetIsIndependent) {
  const ring_in_force ring(101, 3);
  const auto holds = [](const std::vector<coordinates>& points) {
    return has_independent_subset(rows_of(points));
  };
  EXPECT_TRUE(holds({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}));
  EXPECT_FALSE(holds({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}}));
  EXPECT_TRUE(holds({{5, 5, 5}}));
  EXPECT_TRUE(holds({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0}}));
}

TEST(GeneralPosition, HoldsWithoutPoints) {
  const ring_in_force ring(101, 2);
  EXPECT_TRUE(has_independent_subset(rows_of({})));
}

// The rule straight away: some choice of min(s, n + 1) points has a non-zero determinant.
bool plainly_independent_subset(const std::vector<coordinates>& points) {
  const std::size_t size = std::min<std::size_t>(points.size(), dim + 1);
  std::vector<bool> chosen(points.size(), false);
  std::fill(chosen.begin(), chosen.begin() + static_cast<std::ptrdiff_t>(size), true);
  do {
    plain_echelon rows;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (!chosen[i]) continue;
      coordinates row = points[i];
      row.insert(row.begin(), 1);
      rows.add(row);
    }
    if (rows.rank() == static_cast<int>(size)) return true;
  } while (std::prev_permutation(chosen.begin(), chosen.end()));
  return false;
}

TEST(GeneralPosition, AgreesWithTheWalkOverAllSubsets) {
  std::mt19937 random(9);
  int yes = 0;
  int no = 0;
  for (int round = 0; round < 200; ++round) {
    const ring_in_force ring(round % 2 == 0 ? 2 : 3, 2 + round % 3);
    std::vector<coordinates> points = random_points(1 + round % 6, random);
    if (round % 5 < 2) {
      for (coordinates& point : points) point.back() = point.front();
    }
    const bool expected = plainly_independent_subset(points);
    EXPECT_EQ(has_independent_subset(rows_of(points)), expected);
    ++(expected ? yes : no);
  }
  EXPECT_GT(yes, 10);
  EXPECT_GT(no, 10);
}

}  // namespace
}  // namespace zep::tests
