#include "points/walk/hilbert.h"

#include <gtest/gtest.h>

#include "points/walk/buchberger_moeller.h"
#include "points/walk/separators.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

scheme computed(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  need_sep(X);
  return X;
}

TEST(Hilbert, OfOnePoint) {
  const ring_in_force ring(101, 3);
  const scheme X = computed({{1, 2, 3}});
  EXPECT_EQ(X.hilb_fct, std::vector<int>{1});
  EXPECT_EQ(X.sigma, -1);
  EXPECT_EQ(X.delta, 1);
  EXPECT_EQ(X.alpha, 1);
  EXPECT_EQ(X.is_CB, 1);
  EXPECT_EQ(X.is_ar_Go, 1);
}

TEST(Hilbert, OfTwoPoints) {
  const ring_in_force ring(101, 3);
  const scheme X = computed({{1, 2, 3}, {4, 5, 6}});
  EXPECT_EQ(X.delta_fct, (std::vector<int>{1, 1}));
  EXPECT_EQ(X.sigma, 0);
  EXPECT_EQ(X.delta, 1);
  EXPECT_EQ(X.is_ar_Go, 1);
}

TEST(Hilbert, OfThreePointsThatAreNotCollinear) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(X.delta_fct, (std::vector<int>{1, 2, 0}));
  EXPECT_EQ(X.hilb_fct, (std::vector<int>{1, 3, 3}));
  EXPECT_EQ(X.sigma, 0);
  EXPECT_EQ(X.delta, 2);
  EXPECT_EQ(X.alpha, 2);
  EXPECT_EQ(X.is_CB, 1);
  EXPECT_EQ(X.is_ar_Go, 0);
}

TEST(Hilbert, OfCollinearPointsRisesByOne) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}});
  EXPECT_EQ(X.delta_fct, (std::vector<int>{1, 1, 1, 1, 1}));
  EXPECT_EQ(X.sigma, 3);
  EXPECT_EQ(X.alpha, 1);
  EXPECT_EQ(X.is_ar_Go, 1);
}

TEST(Hilbert, OfFourPointsThreeOfThemCollinearFailsCayleyBacharach) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({{0, 0}, {1, 0}, {2, 0}, {0, 1}});
  EXPECT_EQ(X.is_CB, 0);
  EXPECT_EQ(X.is_ar_Go, 0);
}

TEST(Hilbert, OfFourGeneralPointsOfThePlaneIsGorenstein) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
  EXPECT_EQ(X.is_CB, 1);
  EXPECT_EQ(X.is_ar_Go, 1);
}

TEST(Hilbert, IsZeroBelowZeroAndConstantBehindItsEnd) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(hilbert_function(X, -1), 0);
  EXPECT_EQ(hilbert_function(X, 7), 3);
  EXPECT_EQ(difference_function(X, -1), 0);
  EXPECT_EQ(difference_function(X, 7), 0);
}

TEST(Hilbert, OfNoPointsIsZero) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({});
  EXPECT_EQ(hilbert_function(X, 0), 0);
  EXPECT_EQ(X.sigma, 0);
  EXPECT_EQ(X.delta, 0);
  EXPECT_EQ(X.alpha, 0);
}

// H of every set that lacks one of the points; Cayley-Bacharach says that they are all the same.
bool plain_cayley_bacharach(const std::vector<coordinates>& points) {
  std::set<std::vector<int>> functions;
  for (std::size_t i = 0; i < points.size(); ++i) {
    std::vector<coordinates> rest = points;
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(i));
    functions.insert(plain_facts(rest).hilbert);
  }
  return functions.size() == 1;
}

TEST(Hilbert, AgreesWithRanksOfEvaluationMatrices) {
  std::mt19937 random(5);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 5; ++n) {
      const ring_in_force ring(p, n, n % 2 == 0 ? term_order::deglex : term_order::degrevlex);
      const std::vector<coordinates> points = random_points(4 + 6 * n, random);
      const scheme X = computed(points);
      const std::vector<int> expected = plain_facts(points).hilbert;
      EXPECT_EQ(X.sigma + 2, static_cast<int>(expected.size()));
      for (int d = 0; d < X.s; ++d) {
        EXPECT_EQ(X.hilb_fct[d], d < X.sigma + 1 ? expected[d] : X.s);
        EXPECT_EQ(X.delta_fct[d], hilbert_function(X, d) - hilbert_function(X, d - 1));
      }
      EXPECT_EQ(X.delta, difference_function(X, X.sigma + 1));
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
    const scheme X = computed(points);
    ASSERT_EQ(X.alpha, plain_alpha(points));
    seen.insert(X.alpha);
  });
  for (const int alpha : {1, 2, 3, 6}) EXPECT_TRUE(seen.contains(alpha)) << alpha;
}

TEST(Hilbert, SymmetryIsAskedOfAllDegreesUpToSigma) {
  const ring_in_force ring(101, 2);
  for (const int s : {1, 2, 3, 8, 9}) {
    const scheme X = computed(points_on_curve(1, s));
    ASSERT_EQ(X.is_ar_Go, 1);
    for (int d = 0; d < s; ++d) {
      scheme Y = X;
      ++Y.hilb_fct[d];
      hilbert2(Y);
      EXPECT_EQ(Y.is_CB, 1);
      // A single point has H(0) + H(-1) = 1.
      EXPECT_EQ(Y.is_ar_Go, d <= std::max(X.sigma, 0) ? 0 : 1) << "H(" << d << ") of " << s;
    }
  }
}

TEST(Hilbert, WithCayleyBacharachReplacesTheGorensteinVerdict) {
  const ring_in_force ring(101, 2);
  scheme X = computed({{0, 0}, {1, 0}, {0, 1}});
  X.is_ar_Go = 1;
  hilbert2(X);
  EXPECT_EQ(X.is_CB, 1);
  EXPECT_EQ(X.is_ar_Go, 0);
}

TEST(Hilbert, WithoutCayleyBacharachLeavesTheGorensteinVerdictAlone) {
  const ring_in_force ring(101, 2);
  scheme X = computed({{0, 0}, {1, 0}, {2, 0}, {0, 1}});
  for (const int before : {0, 1}) {
    X.is_CB = 1;
    X.is_ar_Go = before;
    hilbert2(X);
    EXPECT_EQ(X.is_CB, 0);
    EXPECT_EQ(X.is_ar_Go, before);
  }
}

TEST(Hilbert, DecidesCayleyBacharachAsTheSubsetsDo) {
  std::mt19937 random(6);
  int with = 0;
  int without = 0;
  for (int round = 0; round < 60; ++round) {
    const ring_in_force ring(round % 2 == 0 ? 3 : 5, 2 + round % 2,
                             round % 3 == 0 ? term_order::deglex : term_order::degrevlex);
    const std::vector<coordinates> points = random_points(2 + round % 9, random);
    const bool expected = plain_cayley_bacharach(points);
    EXPECT_EQ(computed(points).is_CB, expected ? 1 : 0);
    ++(expected ? with : without);
  }
  EXPECT_GT(with, 5);
  EXPECT_GT(without, 5);
}

}  // namespace
}  // namespace zep::tests
