// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/uniformity.h"

#include <gtest/gtest.h>

#include "points/walk/beta_matrix.h"
#include "tests/draw.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

using dependence = std::optional<std::vector<int>>;

matrix beta_of(const std::vector<coordinates>& points) {
  return beta_matrix(walked(points), nobody()).beta;
}

// Which of k are dependent, and what is told of the search.
struct search {
  search(const std::vector<coordinates>& points, int k)
      : found(dependent_separators(beta_of(points), k, reporter)) {}

  told reporter;
  dependence found;
};

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};
// Three points on one line and two on another: the separators of the second and third point have
// proportional leading forms.
const std::vector<coordinates> two_lines = {{0, 0}, {1, 0}, {2, 0}, {0, 1}, {0, 2}};

TEST(DependentSeparators, AreNoneOfTheTriangle) {
  const ring_in_force ring(101, 2);
  for (const int k : {1, 2}) EXPECT_EQ(search(triangle, k).found, std::nullopt);
}

TEST(DependentSeparators, AreTheFirstOnesThatDepend) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(search(two_lines, 1).found, std::nullopt);
  EXPECT_EQ(search(two_lines, 2).found, (std::vector<int>{1, 2}));
  EXPECT_EQ(search({{1, 0}, {2, 0}, {0, 0}, {0, 1}, {0, 2}}, 2).found, (std::vector<int>{0, 1}));
}

// A conic that vanishes at all points but the last separates it, so its leading form is 0.
TEST(DependentSeparators, AreJustOneWhereALeadingFormIsZero) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> one_off_two_lines = {{0, 0}, {1, 0}, {2, 0}, {3, 0},
                                                      {0, 1}, {0, 2}, {0, 3}, {1, 1}};
  EXPECT_EQ(search(one_off_two_lines, 1).found, std::vector<int>{7});
}

TEST(DependentSeparators, AreTheFirstZeroRowForOne) {
  const ring_in_force ring(101, 3);
  const std::vector<coordinates> points = {{1, 0, 1}, {0, 0, 1}, {2, 1, 0},
                                           {0, 0, 2}, {0, 1, 2}, {2, 2, 0}};
  const matrix beta = beta_of(points);
  for (const Fp8 x : beta[1]) EXPECT_EQ(x, Fp8(0));
  EXPECT_EQ(search(points, 1).found, std::vector<int>{1});
}

TEST(DependentSeparators, TellHowFarTheLastPointHasCome) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(search(triangle, 1).reporter.out, "[3][2][1]");
  EXPECT_EQ(search(triangle, 2).reporter.out, "[2][1]");
  EXPECT_EQ(search(two_lines, 1).reporter.out, "[5][4][3][2][1]");
  EXPECT_EQ(search(two_lines, 2).reporter.out, "[4]");
  EXPECT_EQ(search(two_lines, 2).reporter.err, "");
}

TEST(DependentSeparators, TellNothingWhenTheFirstOnesDepend) {
  const ring_in_force ring(101, 2);
  const search first({{1, 0}, {2, 0}, {0, 0}, {0, 1}, {0, 2}}, 2);
  EXPECT_EQ(first.reporter.out + first.reporter.err, "");
}

TEST(DependentSeparators, AreNeverNoneAtAll) {
  const ring_in_force ring(101, 2);
  for (const auto& points : {std::vector<coordinates>(), triangle, two_lines}) {
    const search nothing(points, 0);
    EXPECT_EQ(nothing.found, std::nullopt);
    EXPECT_EQ(nothing.reporter.out + nothing.reporter.err, "");
  }
}

TEST(DependentSeparators, OfMeaninglessPointsAreLookedForAllTheSame) {
  std::mt19937 random(5);
  for (const int p : {4, 6, 9, 250}) {
    const ring_in_force ring(p, 2);
    const matrix beta = beta_of(random_points(12, random));
    for (int k = 1; k <= beta.cols(); ++k) {
      const dependence found = dependent_separators(beta, k, nobody());
      if (found) {
        EXPECT_EQ(std::ssize(*found), k);
      }
    }
  }
  const ring_in_force ring(101, 2);
  const matrix beta = beta_of({{1, 1}, {2, 2}, {1, 1}, {0, 3}, {0, 3}});
  EXPECT_NO_THROW(dependent_separators(beta, beta.cols(), nobody()));
}

// The rule straight away: subsets in colexicographic order, and their ranks.
dependence plainly_dependent(const matrix& beta, int k) {
  std::vector<int> chosen;
  for (int i = 0; i < k; ++i) chosen.push_back(i);
  while (true) {
    plain_echelon rows;
    for (const int i : chosen) {
      std::vector<int> values;
      for (const Fp8 x : beta[i]) values.push_back(x.value());
      rows.add(values);
    }
    if (rows.rank() < k) return chosen;
    // The first that can move does, and those before it go back to the start.
    int j = 0;
    while (chosen[j] + 1 == (j + 1 < k ? chosen[j + 1] : beta.rows())) {
      chosen[j] = j;
      if (++j == k) return std::nullopt;
    }
    ++chosen[j];
  }
}

TEST(DependentSeparatorsProperty, AreThoseThatTheWalkOverAllSubsetsFindsFirst) {
  std::mt19937 random(15);
  int dependent = 0;
  int independent = 0;
  for (int round = 0; round < 120; ++round) {
    const ring_in_force ring(round % 2 == 0 ? 5 : 101, 2 + round % 2);
    const matrix beta = beta_of(random_points(1 + below(random, 10), random));
    for (int k = 1; k <= beta.cols(); ++k) {
      const dependence expected = plainly_dependent(beta, k);
      ASSERT_EQ(dependent_separators(beta, k, nobody()), expected);
      ++(expected ? dependent : independent);
    }
  }
  EXPECT_GT(dependent, 30);
  EXPECT_GT(independent, 30);
}

}  // namespace
}  // namespace zep::tests
