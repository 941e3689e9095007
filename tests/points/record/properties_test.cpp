// SPDX-License-Identifier: GPL-3.0-or-later
// Who decides the Cayley-Bacharach and the Gorenstein property, the separators or the socle.
#include <gtest/gtest.h>

#include <utility>

#include "points/record/scheme.h"
#include "tests/points/computing.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};
const std::vector<coordinates> square = {{0, 0}, {1, 0}, {0, 1}, {1, 1}};
// Delta H is 1 2 1 as for the square, but three of the points are collinear.
const std::vector<coordinates> one_off_the_line = {{0, 0}, {1, 0}, {2, 0}, {0, 1}};

scheme with_separators(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  X.sep();
  return X;
}

// A set of which this is known already, nobody says from where.
scheme with_verdicts(const std::vector<coordinates>& points, bool is_CB, bool is_ar_Go) {
  scheme X = make_set(points);
  results known = X.known();
  known.is_CB = is_CB;
  known.is_ar_Go = is_ar_Go;
  X.restore(known);
  return X;
}

TEST(Gorenstein, IsAnsweredFromTheSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = with_separators(triangle);
  EXPECT_FALSE(X.is_ar_Go());
  scheme Y = with_separators(square);
  EXPECT_TRUE(Y.is_ar_Go());
  // Without the Cayley-Bacharach property.
  scheme Z = with_separators(one_off_the_line);
  EXPECT_FALSE(Z.is_ar_Go());
  EXPECT_FALSE(X.known().socle || Y.known().socle || Z.known().socle);
}

TEST(Gorenstein, IsAnsweredFromTheSocleWithoutSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(square);
  EXPECT_TRUE(X.is_ar_Go());
  EXPECT_EQ(X.known().sep, nullptr);
  EXPECT_NE(X.known().socle, nullptr);
  EXPECT_TRUE(X.known().is_ar_Go);
}

TEST(Gorenstein, IsAnsweredFromTheSocleThatIsThere) {
  const ring_in_force ring(101, 2);
  for (const auto& [points, verdict] : {std::pair(square, true), std::pair(triangle, false)}) {
    scheme X = make_set(points);
    const ideal* const socle = &X.socle();
    // Twice: the first answer changes what is known.
    EXPECT_EQ(X.is_ar_Go(), verdict);
    EXPECT_EQ(X.is_ar_Go(), verdict);
    EXPECT_EQ(X.known().is_CB, verdict);
    EXPECT_EQ(X.known().sep, nullptr);
    EXPECT_EQ(X.known().socle.get(), socle);
  }
}

TEST(Gorenstein, SpeaksForCayleyBacharachWithoutSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(square);
  X.is_ar_Go();
  EXPECT_TRUE(X.known().is_CB);
  EXPECT_TRUE(X.is_CB());
  EXPECT_EQ(X.known().sep, nullptr);
}

TEST(Gorenstein, DeniedBySocleSaysNothingAboutCayleyBacharach) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  EXPECT_FALSE(X.is_ar_Go());
  EXPECT_FALSE(X.known().is_CB);
  EXPECT_TRUE(X.is_CB());
  EXPECT_NE(X.known().sep, nullptr);
}

TEST(Gorenstein, VerdictFromTheSocleReplacesAnOldOne) {
  const ring_in_force ring(101, 2);
  scheme X = with_verdicts(triangle, true, true);
  EXPECT_FALSE(X.is_ar_Go());
  EXPECT_FALSE(X.known().is_ar_Go);
  // A denial does not reach so far.
  EXPECT_TRUE(X.known().is_CB);
}

TEST(Gorenstein, VerdictFromTheSeparatorsReplacesAnOldOne) {
  const ring_in_force ring(101, 2);
  scheme X = with_verdicts(triangle, false, true);
  X.sep();
  EXPECT_TRUE(X.known().is_CB);
  EXPECT_FALSE(X.known().is_ar_Go);
}

TEST(Gorenstein, VerdictStaysWhereTheSeparatorsLeaveTheQuestionOpen) {
  const ring_in_force ring(101, 2);
  for (const bool before : {false, true}) {
    scheme X = with_verdicts(one_off_the_line, true, before);
    X.sep();
    EXPECT_FALSE(X.known().is_CB);
    EXPECT_EQ(X.known().is_ar_Go, before);
    EXPECT_EQ(X.is_ar_Go(), before);
  }
}

TEST(Gorenstein, TellsTheOrderIdealsProgressButNoSeparators) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  set.X.is_ar_Go();
  EXPECT_EQ(set.reporter.err, "calculating triangular sequence ...\n[3][2][1]\n");
  EXPECT_EQ(set.reporter.out, line);
}

TEST(CayleyBacharach, MakesTheSeparatorsUnlessItIsKnown) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(one_off_the_line);
  EXPECT_FALSE(X.is_CB());
  EXPECT_NE(X.known().sep, nullptr);
  scheme Y = with_verdicts(triangle, true, false);
  EXPECT_TRUE(Y.is_CB());
  EXPECT_EQ(Y.known().sep, nullptr);
  EXPECT_EQ(Y.known().bu_mo, nullptr);
}

// By the socle, and by the separators.
std::pair<bool, bool> both_verdicts(const std::vector<coordinates>& points) {
  scheme by_socle = make_set(points);
  scheme by_separators = with_separators(points);
  return {by_socle.is_ar_Go(), by_separators.is_ar_Go()};
}

const std::pair<bool, bool> yes{true, true};
const std::pair<bool, bool> no{false, false};

TEST(Gorenstein, HoldsForOneTwoAndCollinearPoints) {
  for (int n = 2; n <= 5; ++n) {
    const ring_in_force ring(101, n);
    for (int s = 1; s <= 6; ++s) EXPECT_EQ(both_verdicts(points_on_curve(1, s)), yes);
  }
}

TEST(Gorenstein, HoldsForCompleteIntersections) {
  for (int n = 2; n <= 4; ++n) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(both_verdicts(points_of_grid(2, 4)), yes);
    EXPECT_EQ(both_verdicts(points_of_grid(n, 2)), yes);
  }
}

TEST(Gorenstein, HoldsForTwoMoreGeneralPointsThanTheSpaceHasDimensions) {
  for (int n = 2; n <= 6; ++n) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(both_verdicts(points_of_frame()), yes);
    std::vector<coordinates> simplex = points_of_frame();
    simplex.pop_back();
    EXPECT_EQ(both_verdicts(simplex), no);
  }
}

TEST(Gorenstein, HoldsOnANormalCurveForEveryNthNumberOfPoints) {
  for (int n = 2; n <= 4; ++n) {
    const ring_in_force ring(101, n);
    for (int s = n + 1; s <= 3 * n + 3; ++s) {
      EXPECT_EQ(both_verdicts(points_on_curve(n, s)), s % n == 2 % n ? yes : no)
          << s << " in P^" << n;
    }
  }
}

TEST(Gorenstein, FailsForASymmetricHilbertFunctionWithoutCayleyBacharach) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(both_verdicts(one_off_the_line), no);
}

TEST(Gorenstein, OfMeaninglessPointsIsAnsweredSomehow) {
  const auto expect_an_answer = [](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    const bool answer = X.is_ar_Go();
    EXPECT_EQ(X.known().is_ar_Go, answer);
  };
  for_each_meaningless_set(expect_an_answer);
  const ring_in_force ring(101, 2);
  expect_an_answer({});
}

TEST(GorensteinProperty, SocleAndSymmetryAgree) {
  int gorenstein = 0;
  int others = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const bool expected = plain_artinian(points).type() == 1;
    ASSERT_EQ(both_verdicts(points), expected ? yes : no);
    ++(expected ? gorenstein : others);
  });
  EXPECT_GT(gorenstein, 50);
  EXPECT_GT(others, 50);
}

}  // namespace
}  // namespace zep::tests
