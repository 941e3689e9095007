// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/separators.h"

#include <gtest/gtest.h>

#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

verdicts verdicts_on(const std::vector<coordinates>& points) {
  return sep(walked(points), nobody());
}

void expect_verdicts(const std::vector<coordinates>& points, bool is_CB,
                     std::optional<bool> is_ar_Go) {
  const verdicts found = verdicts_on(points);
  EXPECT_EQ(found.is_CB, is_CB);
  EXPECT_EQ(found.is_ar_Go, is_ar_Go);
}

TEST(Separators, SayGorensteinOfOneAndOfTwoPoints) {
  const ring_in_force ring(101, 3);
  expect_verdicts({{1, 2, 3}}, true, true);
  expect_verdicts({{1, 2, 3}, {4, 5, 6}}, true, true);
}

TEST(Separators, SayOnlyCayleyBacharachOfThreePointsThatAreNotCollinear) {
  const ring_in_force ring(101, 2);
  expect_verdicts({{0, 0}, {1, 0}, {0, 1}}, true, false);
}

TEST(Separators, SayGorensteinOfCollinearPoints) {
  const ring_in_force ring(101, 2);
  expect_verdicts({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}, true, true);
}

TEST(Separators, SayGorensteinOfFourGeneralPointsOfThePlane) {
  const ring_in_force ring(101, 2);
  expect_verdicts({{0, 0}, {1, 0}, {0, 1}, {1, 1}}, true, true);
}

// Delta H is 1 2 1, which is symmetric, but three of the points are collinear.
TEST(Separators, WithoutCayleyBacharachLeaveTheGorensteinQuestionOpen) {
  const ring_in_force ring(101, 2);
  expect_verdicts({{0, 0}, {1, 0}, {2, 0}, {0, 1}}, false, std::nullopt);
}

TEST(Separators, OfNoPointsHaveOneDegree) {
  const ring_in_force ring(101, 2);
  EXPECT_TRUE(verdicts_on({}).is_CB);
}

TEST(Separators, AreAskedForSymmetryInAllDegreesUpToSigma) {
  const ring_in_force ring(101, 2);
  for (const int s : {1, 2, 3, 8, 9}) {
    const points::order_ideal X = walked(points_on_curve(1, s));
    ASSERT_EQ(sep(X, nobody()).is_ar_Go, true);
    for (int d = 0; d < s; ++d) {
      points::order_ideal Y = X;
      ++Y.H.hilb_fct[d];
      const verdicts found = sep(Y, nobody());
      EXPECT_TRUE(found.is_CB);
      // A single point has H(0) + H(-1) = 1.
      EXPECT_EQ(found.is_ar_Go, d > std::max(X.H.sigma, 0)) << "H(" << d << ") of " << s;
    }
  }
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

TEST(Separators, DecideCayleyBacharachAsTheSubsetsDo) {
  std::mt19937 random(6);
  int with = 0;
  int without = 0;
  for (int round = 0; round < 60; ++round) {
    const ring_in_force ring(round % 2 == 0 ? 3 : 5, 2 + round % 2,
                             round % 3 == 0 ? term_order::deglex : term_order::degrevlex);
    const std::vector<coordinates> points = random_points(2 + round % 9, random);
    const bool expected = plain_cayley_bacharach(points);
    const verdicts found = verdicts_on(points);
    EXPECT_EQ(found.is_CB, expected);
    EXPECT_EQ(found.is_ar_Go.has_value(), expected);
    ++(expected ? with : without);
  }
  EXPECT_GT(with, 5);
  EXPECT_GT(without, 5);
}

TEST(Separators, TellTheirProgressAndTheirEnd) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{0, 0}, {1, 0}, {0, 1}});
  told reporter;
  sep(X, reporter);
  EXPECT_EQ(reporter.out, line);
  EXPECT_EQ(reporter.err, "calculating biorthogonal sequence ...\n[3][2][1]\n");
}

TEST(Separators, OfRepeatedPointsAreMeaninglessButThere) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{3, 4}, {3, 4}, {1, 1}});
  EXPECT_EQ(X.separator.rows(), 3);
  told reporter;
  sep(X, reporter);
  EXPECT_EQ(reporter.err, "calculating biorthogonal sequence ...\n[3][2][1]\n");
}

TEST(Separators, OfMeaninglessPointsAreJudgedAllTheSame) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const verdicts found = verdicts_on(points);
    EXPECT_EQ(found.is_ar_Go.has_value(), found.is_CB);
  });
}

class SeparatorsProperty : public ::testing::TestWithParam<int> {};

TEST_P(SeparatorsProperty, AreOneAtTheirPointAndZeroAtTheOthers) {
  std::mt19937 random(11);
  for (int n = 2; n <= 6; ++n) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(GetParam(), n, order);
      const std::vector<coordinates> points = random_points(10 + 4 * n, random);
      const points::order_ideal X = walked(points);
      for (int i = 0; i < X.s(); ++i) {
        const polynomial f = separator_of(X, i);
        for (int k = 0; k < X.s(); ++k) EXPECT_EQ(value_at(f, points[k]), i == k ? 1 : 0);
        for (int k = 0; k < f.no_of_monoms(); ++k) EXPECT_GE(is_el_OO(X, f.term(k)), 0);
        EXPECT_EQ(separator_degree(X, i), f.term(0).tot_deg());
      }
    }
  }
}

TEST_P(SeparatorsProperty, FollowTheirPointsIntoAnotherOrder) {
  std::mt19937 random(12);
  const ring_in_force ring(GetParam(), 3);
  std::vector<coordinates> points = random_points(25, random);
  const points::order_ideal X = walked(points);
  std::reverse(points.begin(), points.end());
  const points::order_ideal Y = walked(points);
  for (int i = 0; i < X.s(); ++i) EXPECT_EQ(separator_of(X, i), separator_of(Y, X.s() - 1 - i));
}

INSTANTIATE_TEST_SUITE_P(Fields, SeparatorsProperty, ::testing::Values(2, 3, 101, 251));

}  // namespace
}  // namespace zep::tests
