#include "points/walk/separators.h"

#include <gtest/gtest.h>

#include "points/ideal/gorenstein.h"
#include "tests/points/point_sets.h"
#include "tests/points/shown.h"

namespace zep::tests {
namespace {

std::string printed_separators(scheme& X) {
  std::ostringstream out;
  separators(out, X);
  return out.str();
}

TEST(Separators, OfOnePointIsTheConstantOne) {
  const ring_in_force ring(101, 3);
  scheme X = make_set({{5, 6, 7}});
  const silence quiet;
  EXPECT_EQ(printed_separators(X), "separators of X : \nf1 = 1\n" + line);
}

TEST(Separators, OfThreePointsOfTheTriangle) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}});
  const silence quiet;
  EXPECT_EQ(printed_separators(X), "separators of X : \nf1 = - X - Y + 1\nf2 = X\nf3 = Y\n" + line);
}

TEST(Separators, AreMadeOnceWithLineInPlaceOfAnyOtherOutput) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}});
  const silence loud;
  const std::string first = printed_separators(X);
  EXPECT_EQ(printed_separators(X), first);
  EXPECT_EQ(loud.out.text(), line + line);
  EXPECT_EQ(loud.err.text(),
            "calculating triangular sequence ...\n[3][2][1]\n"
            "calculating biorthogonal sequence ...\n[3][2][1]\n");
}

TEST(Separators, AreMadeOnceWhateverIsKnownOfTheSet) {
  const ring_in_force ring(101, 2);
  scheme without = make_set({{0, 0}, {1, 0}, {2, 0}, {0, 1}});
  scheme with = make_set({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
  for (scheme* X : {&without, &with}) shown(is_ar_Go, *X);
  EXPECT_EQ(without.is_CB, 0);
  EXPECT_EQ(with.is_CB, 1);
  for (scheme* X : {&without, &with}) {
    const silence quiet;
    EXPECT_EQ(X->sep, 0);
    for (int times = 0; times < 3; ++times) {
      need_sep(*X);
      EXPECT_EQ(X->sep, 1);
      EXPECT_EQ(quiet.out.text(), line);
    }
  }
}

TEST(Separators, LeaveStandardErrorAloneWhenQuiet) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}});
  const silence quiet;
  verbose = 0;
  need_sep(X);
  verbose = 1;
  EXPECT_EQ(quiet.out.text(), line + line);
  EXPECT_EQ(quiet.err.text(), "");
}

// From the tenth separator on the label is wider.
TEST(Separators, BreakLongLinesBehindTheWidthOfTheLabel) {
  std::mt19937 random(3);
  line_ends seen;
  for (int round = 0; round < 40; ++round) {
    const ring_in_force ring(101, 3);
    const std::string text = shown(separators, random_points(12 + round % 6, random));
    EXPECT_TRUE(breaks_where_it_must(text, seen)) << text;
  }
  EXPECT_GT(seen.full, 0);
  EXPECT_GT(seen.tight, 0);
}

TEST(Separators, OfNoPointsAreAnEmptyList) {
  const ring_in_force ring(101, 3);
  scheme X(0);
  const silence quiet;
  EXPECT_EQ(printed_separators(X), "separators of X : \n" + line);
}

TEST(Separators, OfRepeatedPointsAreMeaninglessButThere) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{3, 4}, {3, 4}, {1, 1}});
  const silence quiet;
  EXPECT_EQ(printed_separators(X).substr(0, 19), "separators of X : \n");
  EXPECT_EQ(X.separator.rows(), 3);
  EXPECT_TRUE(quiet.err.text().ends_with("calculating biorthogonal sequence ...\n[3][2][1]\n"));
}

class SeparatorsProperty : public ::testing::TestWithParam<int> {};

TEST_P(SeparatorsProperty, AreOneAtTheirPointAndZeroAtTheOthers) {
  std::mt19937 random(11);
  for (int n = 2; n <= 6; ++n) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(GetParam(), n, order);
      const std::vector<coordinates> points = random_points(10 + 4 * n, random);
      scheme X = make_set(points);
      const silence quiet;
      need_sep(X);
      for (int i = 0; i < X.s; ++i) {
        const polynomial f = separator_of(X, i);
        for (int k = 0; k < X.s; ++k) EXPECT_EQ(value_at(f, points[k]), i == k ? 1 : 0);
        for (int k = 0; k < f.no_of_monoms(); ++k) EXPECT_GE(is_el_OO(X, f.term(k)), 0);
      }
    }
  }
}

TEST_P(SeparatorsProperty, FollowTheirPointsIntoAnotherOrder) {
  std::mt19937 random(12);
  const ring_in_force ring(GetParam(), 3);
  std::vector<coordinates> points = random_points(25, random);
  scheme X = make_set(points);
  std::reverse(points.begin(), points.end());
  scheme Y = make_set(points);
  const silence quiet;
  need_sep(X);
  need_sep(Y);
  for (int i = 0; i < X.s; ++i) EXPECT_EQ(separator_of(X, i), separator_of(Y, X.s - 1 - i));
}

INSTANTIATE_TEST_SUITE_P(Fields, SeparatorsProperty, ::testing::Values(2, 3, 101, 251));

}  // namespace
}  // namespace zep::tests
