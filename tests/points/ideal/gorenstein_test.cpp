#include "points/ideal/gorenstein.h"

#include <gtest/gtest.h>

#include "points/ideal/socle.h"
#include "points/walk/invariants.h"
#include "points/walk/separators.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/point_sets.h"
#include "tests/points/shown.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

const std::string yes = "scheme is arithmetically Gorenstein\n" + line;
const std::string no = "scheme is NOT arithmetically Gorenstein\n" + line;

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};
const std::vector<coordinates> square = {{0, 0}, {1, 0}, {0, 1}, {1, 1}};

scheme with_separators(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  need_sep(X);
  return X;
}

TEST(Gorenstein, IsAnsweredFromTheSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = with_separators(triangle);
  EXPECT_EQ(shown(is_ar_Go, X), no);
  scheme Y = with_separators(square);
  EXPECT_EQ(shown(is_ar_Go, Y), yes);
  // Without the Cayley-Bacharach property.
  scheme Z = with_separators({{0, 0}, {1, 0}, {2, 0}, {0, 1}});
  EXPECT_EQ(shown(is_ar_Go, Z), no);
  EXPECT_FALSE(X.socle.has_value() || Y.socle.has_value() || Z.socle.has_value());
}

TEST(Gorenstein, IsAnsweredFromTheSocleWithoutSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(square);
  EXPECT_EQ(shown(is_ar_Go, X), yes);
  EXPECT_EQ(X.sep, 0);
  EXPECT_TRUE(X.socle.has_value());
  EXPECT_EQ(X.is_ar_Go, 1);
}

TEST(Gorenstein, IsAnsweredFromTheSocleThatIsThere) {
  const ring_in_force ring(101, 2);
  for (const auto& [points, verdict] : {std::pair(square, yes), std::pair(triangle, no)}) {
    scheme X = make_set(points);
    shown(typ, X);
    // Twice: the first answer changes what is known.
    EXPECT_EQ(shown(is_ar_Go, X) + shown(is_ar_Go, X), verdict + verdict);
    EXPECT_EQ(X.is_CB, verdict == yes ? 1 : 0);
    EXPECT_EQ(X.sep, 0);
  }
}

TEST(Gorenstein, SpeaksForCayleyBacharachWithoutSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(square);
  shown(is_ar_Go, X);
  EXPECT_EQ(X.is_CB, 1);
  EXPECT_EQ(shown(is_CB, X), "scheme has Cayley-Bacharach property\n" + line);
  EXPECT_EQ(X.sep, 0);
}

TEST(Gorenstein, DeniedBySocleSaysNothingAboutCayleyBacharach) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  EXPECT_EQ(shown(is_ar_Go, X), no);
  EXPECT_EQ(X.is_CB, 0);
  EXPECT_EQ(shown(is_CB, X), "scheme has Cayley-Bacharach property\n" + line);
  EXPECT_EQ(X.sep, 1);
}

TEST(Gorenstein, VerdictFromTheSocleReplacesAnOldOne) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.is_ar_Go = 1;
  X.is_CB = 1;
  EXPECT_EQ(shown(is_ar_Go, X), no);
  EXPECT_EQ(X.is_ar_Go, 0);
  // A denial does not reach so far.
  EXPECT_EQ(X.is_CB, 1);
}

TEST(Gorenstein, ReportsTheOrderIdealsProgressButNoSeparators) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  const silence loud;
  std::ostringstream out;
  is_ar_Go(out, X);
  EXPECT_EQ(loud.err.text(), "calculating triangular sequence ...\n[3][2][1]\n");
  EXPECT_EQ(loud.out.text(), line);
}

// By the socle, and by the separators.
std::string both_verdicts(const std::vector<coordinates>& points) {
  scheme X = with_separators(points);
  return shown(is_ar_Go, points) + shown(is_ar_Go, X);
}

TEST(Gorenstein, HoldsForOneTwoAndCollinearPoints) {
  for (int n = 2; n <= 5; ++n) {
    const ring_in_force ring(101, n);
    for (int s = 1; s <= 6; ++s) EXPECT_EQ(both_verdicts(points_on_curve(1, s)), yes + yes);
  }
}

TEST(Gorenstein, HoldsForCompleteIntersections) {
  for (int n = 2; n <= 4; ++n) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(both_verdicts(points_of_grid(2, 4)), yes + yes);
    EXPECT_EQ(both_verdicts(points_of_grid(n, 2)), yes + yes);
  }
}

TEST(Gorenstein, HoldsForTwoMoreGeneralPointsThanTheSpaceHasDimensions) {
  for (int n = 2; n <= 6; ++n) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(both_verdicts(points_of_frame()), yes + yes);
    std::vector<coordinates> simplex = points_of_frame();
    simplex.pop_back();
    EXPECT_EQ(both_verdicts(simplex), no + no);
  }
}

TEST(Gorenstein, HoldsOnANormalCurveForEveryNthNumberOfPoints) {
  for (int n = 2; n <= 4; ++n) {
    const ring_in_force ring(101, n);
    for (int s = n + 1; s <= 3 * n + 3; ++s) {
      const std::string verdict = s % n == 2 % n ? yes : no;
      EXPECT_EQ(both_verdicts(points_on_curve(n, s)), verdict + verdict) << s << " in P^" << n;
    }
  }
}

TEST(Gorenstein, FailsForASymmetricHilbertFunctionWithoutCayleyBacharach) {
  const ring_in_force ring(101, 2);
  // Delta H is 1 2 1 as for the square, but three of the points are collinear.
  EXPECT_EQ(both_verdicts({{0, 0}, {1, 0}, {2, 0}, {0, 1}}), no + no);
}

TEST(Gorenstein, OfMeaninglessPointsIsAnsweredSomehow) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const std::string verdict = shown(is_ar_Go, points);
    EXPECT_TRUE(verdict == yes || verdict == no);
  });
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(is_ar_Go, std::vector<coordinates>()).substr(0, 10), "scheme is ");
}

TEST(GorensteinProperty, SocleAndSymmetryAgree) {
  int gorenstein = 0;
  int others = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const bool expected = plain_artinian(points).type() == 1;
    ASSERT_EQ(both_verdicts(points), expected ? yes + yes : no + no);
    ++(expected ? gorenstein : others);
  });
  EXPECT_GT(gorenstein, 50);
  EXPECT_GT(others, 50);
}

}  // namespace
}  // namespace zep::tests
