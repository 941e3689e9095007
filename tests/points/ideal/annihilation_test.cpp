// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/annihilation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_socle.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

TEST(Annihilation, OfTheVariablesOfATriangleIsNoCondition) {
  const ring_in_force ring(101, 2);
  const std::optional<column_choice> system =
      annihilation(Can_Lf(walked({{0, 0}, {1, 0}, {0, 1}})), {0, 1}, 1, 2);
  ASSERT_TRUE(system);
  EXPECT_EQ(system->rank(), 0);
}

TEST(Annihilation, SaysThatADifferenceOfVariablesHasOppositeCoefficients) {
  const ring_in_force ring(101, 2);
  // The members are 1, Y, X, Y^2; Y^2 = XY = X^2 modulo X_0.
  const canonical_forms R = Can_Lf(walked({{0, 0}, {1, 1}, {2, 2}, {0, 1}}));
  std::optional<column_choice> system = annihilation(R, {0, 1}, 1, 2);
  ASSERT_TRUE(system);
  ASSERT_EQ(system->rank(), 1);
  EXPECT_EQ((*system)[0][0], 1);
  EXPECT_EQ((*system)[0][1], 1);
  // Y alone is not annihilated.
  EXPECT_FALSE(annihilation(R, {0, 1}, 1, 1));
}

TEST(Annihilation, LeavesNothingToNoMembers) {
  const ring_in_force ring(101, 2);
  EXPECT_FALSE(annihilation(Can_Lf(walked({{0, 0}, {1, 1}, {2, 2}, {0, 1}})), {0, 1}, 1, 0));
}

// Expects the rows of the large system, solved, when the columns are chosen in any order; returns
// the number of free unknowns.
int free_unknowns(const points::canonical_forms& R, const std::vector<int>& variables, int d, int m,
                  std::mt19937& random) {
  const matrix large = plain_annihilation(R, variables, d, m);
  std::optional<column_choice> system = annihilation(R, variables, d, m);
  EXPECT_EQ(system.has_value(), rank(large) < m);
  if (!system) return 0;
  EXPECT_EQ(system->rank(), rank(large));
  std::vector<int> order = identity_order(m);
  for (int k = m - 1; k >= 0; --k) {
    std::swap(order[k], order[below(random, k + 1)]);
    if (k % 2 == 0) system->choose(order[k]);
  }
  matrix both(m, large.rows() + system->rank());
  for (int i = 0; i < large.rows(); ++i) {
    std::copy(large[i].begin(), large[i].end(), both[i].begin());
  }
  for (int i = 0; i < system->rank(); ++i) {
    std::copy((*system)[i].begin(), (*system)[i].end(), both[large.rows() + i].begin());
    for (int k = 0; k < system->rank(); ++k) {
      EXPECT_EQ((*system)[i][system->pivot(k)], i == k ? 1 : 0);
    }
  }
  EXPECT_EQ(rank(both), system->rank());
  return m - system->rank();
}

TEST(AnnihilationProperty, SpansTheEquationsOfAllProducts) {
  std::mt19937 random(101);
  int most = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const canonical_forms R = Can_Lf(X);
    const std::vector<int> variables = variables_in_O(X);
    for (int d = 0; d <= R.top_degree() && !variables.empty(); ++d) {
      for (const int m : {R.dimension(d), below(random, R.dimension(d) + 1)}) {
        most = std::max(most, free_unknowns(R, variables, d, m, random));
        most = std::max(most, free_unknowns(R, {variables.front()}, d, m, random));
      }
    }
  });
  EXPECT_GT(most, 10);
}

// More members of two degrees than are worked on together, and from few to almost all of the
// unknowns free.
TEST(AnnihilationProperty, OfLargerSetsSpansTheEquationsOfAllProducts) {
  std::mt19937 random(103);
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 8, order);
    int most = 0;
    for (const int s : {150, 167, 172, 190, 330}) {
      const points::order_ideal X = walked(random_points(s, random));
      const canonical_forms R = Can_Lf(X);
      const int d = R.top_degree() - 1;
      const int m = R.dimension(d);
      free_unknowns(R, variables_in_O(X), d, m, random);
      most = std::max(most, free_unknowns(R, {0, 7}, d, m, random));
    }
    EXPECT_GT(most, 100);
  }
}

TEST(Annihilation, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const canonical_forms R = Can_Lf(X);
    const std::vector<int> variables = variables_in_O(X);
    for (int d = 0; d <= R.top_degree() && !variables.empty(); ++d) {
      const std::optional<column_choice> system = annihilation(R, variables, d, R.dimension(d));
      EXPECT_LE(system ? system->rank() : 0, R.dimension(d));
    }
  });
}

}  // namespace
}  // namespace zep::tests
