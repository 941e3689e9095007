// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/hilbert.h"

#include <gtest/gtest.h>

#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

hilbert_numbers computed(const std::vector<coordinates>& points) { return walked(points).H; }

TEST(Hilbert, OfOnePoint) {
  const ring_in_force ring(101, 3);
  const hilbert_numbers H = computed({{1, 2, 3}});
  EXPECT_EQ(H.hilb_fct, std::vector<int>{1});
  EXPECT_EQ(H.sigma, -1);
  EXPECT_EQ(H.delta, 1);
  EXPECT_EQ(H.alpha, 1);
}

TEST(Hilbert, OfTwoPoints) {
  const ring_in_force ring(101, 3);
  const hilbert_numbers H = computed({{1, 2, 3}, {4, 5, 6}});
  EXPECT_EQ(H.delta_fct, (std::vector<int>{1, 1}));
  EXPECT_EQ(H.sigma, 0);
  EXPECT_EQ(H.delta, 1);
}

TEST(Hilbert, OfThreePointsThatAreNotCollinear) {
  const ring_in_force ring(101, 2);
  const hilbert_numbers H = computed({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(H.delta_fct, (std::vector<int>{1, 2, 0}));
  EXPECT_EQ(H.hilb_fct, (std::vector<int>{1, 3, 3}));
  EXPECT_EQ(H.sigma, 0);
  EXPECT_EQ(H.delta, 2);
  EXPECT_EQ(H.alpha, 2);
}

TEST(Hilbert, OfCollinearPointsRisesByOne) {
  const ring_in_force ring(101, 2);
  const hilbert_numbers H = computed({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}});
  EXPECT_EQ(H.delta_fct, (std::vector<int>{1, 1, 1, 1, 1}));
  EXPECT_EQ(H.sigma, 3);
  EXPECT_EQ(H.alpha, 1);
}

TEST(Hilbert, IsZeroBelowZeroAndConstantBehindItsEnd) {
  const ring_in_force ring(101, 2);
  const hilbert_numbers H = computed({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(hilbert_function(H, -1), 0);
  EXPECT_EQ(hilbert_function(H, 7), 3);
  EXPECT_EQ(difference_function(H, -1), 0);
  EXPECT_EQ(difference_function(H, 7), 0);
}

TEST(Hilbert, OfNoPointsIsZero) {
  const ring_in_force ring(101, 2);
  const hilbert_numbers H = computed({});
  for (const int n : {-1, 0, 1}) {
    EXPECT_EQ(hilbert_function(H, n), 0);
    EXPECT_EQ(difference_function(H, n), 0);
  }
  EXPECT_EQ(H.sigma, 0);
  EXPECT_EQ(H.delta, 0);
  EXPECT_EQ(H.alpha, 0);
}

TEST(Hilbert, IsReadOffDegreesAndTheFirstLeadingMonomial) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), monomial({0, 1}), monomial({1, 0}), monomial({0, 2})};
  const groebner_basis Ix({monomial({1, 1}), monomial({2, 0}), monomial({0, 3})},
                          std::vector<row>(3));
  const hilbert_numbers H = hilbert(O, Ix);
  EXPECT_EQ(H.delta_fct, (std::vector<int>{1, 2, 1, 0}));
  EXPECT_EQ(H.hilb_fct, (std::vector<int>{1, 3, 4, 4}));
  EXPECT_EQ(H.sigma, 1);
  EXPECT_EQ(H.delta, 1);
  EXPECT_EQ(H.alpha, 2);
}

// Monomials 1 that fill O up count as members of degree 0.
TEST(Hilbert, OfRepeatedPointsCountsThemInDegreeZero) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(computed({{0, 0}, {0, 0}, {1, 0}, {2, 0}}).hilb_fct, (std::vector<int>{2, 3, 4, 4}));
}

TEST(Hilbert, AgreesWithRanksOfEvaluationMatrices) {
  std::mt19937 random(5);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 5; ++n) {
      const ring_in_force ring(p, n, n % 2 == 0 ? term_order::deglex : term_order::degrevlex);
      const std::vector<coordinates> points = random_points(4 + 6 * n, random);
      const hilbert_numbers H = computed(points);
      const std::vector<int> expected = plain_facts(points).hilbert;
      const int s = static_cast<int>(points.size());
      EXPECT_EQ(H.sigma + 2, static_cast<int>(expected.size()));
      ASSERT_EQ(std::ssize(H.hilb_fct), s);
      ASSERT_EQ(std::ssize(H.delta_fct), s);
      for (int d = 0; d < s; ++d) {
        EXPECT_EQ(H.hilb_fct[d], d < H.sigma + 1 ? expected[d] : s);
        EXPECT_EQ(H.delta_fct[d], hilbert_function(H, d) - hilbert_function(H, d - 1));
      }
      EXPECT_EQ(H.delta, difference_function(H, H.sigma + 1));
    }
  }
}

// Forms of degree d are as many as monomials of degree up to d in the affine variables; one of them
// vanishes when they are more than the conditions.
int plain_alpha(const std::vector<coordinates>& points) {
  const std::vector<int> conditions = plain_facts(points).hilbert;
  int forms = 0;
  for (int d = 0;; ++d) {
    forms += static_cast<int>(monomials_of_degree(d).size());
    if (forms > (d < std::ssize(conditions) ? conditions[d] : conditions.back())) return d;
  }
}

TEST(HilbertProperty, AlphaIsTheLeastDegreeOfAFormThatVanishes) {
  std::set<int> seen;
  for_each_set([&](const std::vector<coordinates>& points) {
    const int alpha = computed(points).alpha;
    ASSERT_EQ(alpha, plain_alpha(points));
    seen.insert(alpha);
  });
  for (const int alpha : {1, 2, 3, 6}) EXPECT_TRUE(seen.contains(alpha)) << alpha;
}

}  // namespace
}  // namespace zep::tests
