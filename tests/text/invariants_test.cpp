// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/invariants.h"

#include <gtest/gtest.h>

#include "tests/points/point_sets.h"
#include "tests/points/shown.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

std::string number_of(void (*display)(std::ostream&, const hilbert_numbers&),
                      const std::vector<coordinates>& points) {
  return shown(display, walked(points).H);
}

std::string list_of(void (*display)(std::ostream&, const points::order_ideal&),
                    const std::vector<coordinates>& points) {
  return shown(display, walked(points));
}

TEST(Invariants, EndWithLine) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};
  EXPECT_EQ(number_of(alpha_X, triangle), "alpha = 2\n" + line);
  EXPECT_EQ(number_of(sigma_X, triangle), "sigma = 0\n" + line);
  EXPECT_EQ(number_of(delta_X, triangle), "delta = 2\n" + line);
  EXPECT_EQ(number_of(hilb_fct, triangle), "H(n) = 1 3 \n" + line);
  EXPECT_EQ(number_of(delta_fct, triangle), "delta H(n) = 1 2 \n" + line);
  EXPECT_EQ(list_of(text::order_ideal, triangle), "order ideal of X : \n1, Y, X\n" + line);
  EXPECT_EQ(list_of(groebner, triangle),
            "Groebner basis of I(X) : \ng1 = Y^2 - Y\ng2 = XY\ng3 = X^2 - X\n" + line);
  EXPECT_EQ(list_of(separators, triangle),
            "separators of X : \nf1 = - X - Y + 1\nf2 = X\nf3 = Y\n" + line);
}

TEST(Invariants, OfOnePoint) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(number_of(sigma_X, {{3, 4}}), "sigma = -1\n" + line);
  EXPECT_EQ(number_of(hilb_fct, {{3, 4}}), "H(n) = 1 \n" + line);
  EXPECT_EQ(number_of(delta_fct, {{3, 4}}), "delta H(n) = 1 \n" + line);
  EXPECT_EQ(list_of(separators, {{3, 4}}), "separators of X : \nf1 = 1\n" + line);
}

TEST(Invariants, GoUpToTheDegreeFromWhichTheHilbertFunctionIsConstant) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {0, 1}, {1, 1}};
  EXPECT_EQ(number_of(hilb_fct, points), "H(n) = 1 3 5 6 7 \n" + line);
  EXPECT_EQ(number_of(delta_fct, points), "delta H(n) = 1 2 2 1 1 \n" + line);
  EXPECT_EQ(list_of(text::order_ideal, points),
            "order ideal of X : \n1, Y, X, XY, X^2, X^3, X^4\n" + line);
}

TEST(Invariants, KeepListsOnOneLineHoweverLong) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = points_on_curve(1, 100);
  std::string values;
  std::string differences;
  std::string monomials = "1, X";
  for (int n = 0; n < 100; ++n) {
    values += std::to_string(n + 1) + " ";
    differences += "1 ";
    if (n > 1) monomials += ", X^" + std::to_string(n);
  }
  EXPECT_EQ(number_of(hilb_fct, points), "H(n) = " + values + "\n" + line);
  EXPECT_EQ(number_of(delta_fct, points), "delta H(n) = " + differences + "\n" + line);
  EXPECT_EQ(list_of(text::order_ideal, points), "order ideal of X : \n" + monomials + "\n" + line);
}

// From the tenth element on the label is wider.
TEST(Invariants, BreakLongBasisElementsBehindTheWidthOfTheLabel) {
  std::mt19937 random(4);
  line_ends seen;
  for (int round = 0; round < 40; ++round) {
    const ring_in_force ring(101, 3);
    const std::string text = list_of(groebner, random_points(20 + round % 10, random));
    EXPECT_NE(text.find("\ng10 = "), std::string::npos);
    EXPECT_TRUE(breaks_where_it_must(text, seen)) << text;
  }
  EXPECT_GT(seen.full, 0);
  EXPECT_GT(seen.tight, 0);
}

TEST(Invariants, BreakLongSeparatorsBehindTheWidthOfTheLabel) {
  std::mt19937 random(3);
  line_ends seen;
  for (int round = 0; round < 40; ++round) {
    const ring_in_force ring(101, 3);
    const std::string text = list_of(separators, random_points(12 + round % 6, random));
    EXPECT_TRUE(breaks_where_it_must(text, seen)) << text;
  }
  EXPECT_GT(seen.full, 0);
  EXPECT_GT(seen.tight, 0);
}

TEST(Invariants, OfNoPointsAreHeadingsWithNothingAndZeros) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(number_of(alpha_X, {}), "alpha = 0\n" + line);
  EXPECT_EQ(number_of(sigma_X, {}), "sigma = 0\n" + line);
  EXPECT_EQ(number_of(delta_X, {}), "delta = 0\n" + line);
  EXPECT_EQ(number_of(hilb_fct, {}), "H(n) = 0 0 \n" + line);
  EXPECT_EQ(number_of(delta_fct, {}), "delta H(n) = 0 0 \n" + line);
  EXPECT_EQ(list_of(text::order_ideal, {}), "order ideal of X : \n\n" + line);
  EXPECT_EQ(list_of(groebner, {}), "Groebner basis of I(X) : \n" + line);
  EXPECT_EQ(list_of(separators, {}), "separators of X : \n" + line);
}

TEST(Invariants, OfRepeatedPointsArePrintedAllTheSame) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = {{3, 4}, {3, 4}, {1, 1}};
  EXPECT_TRUE(list_of(separators, points).starts_with("separators of X : \nf1 = "));
  EXPECT_EQ(list_of(text::order_ideal, points), "order ideal of X : \n1, Y, 1\n" + line);
}

TEST(Verdicts, OnCayleyBacharachAndGorenstein) {
  const auto both = [](bool verdict) {
    return shown([&](std::ostream& out) {
      text::is_CB(out, verdict);
      text::is_ar_Go(out, verdict);
    });
  };
  EXPECT_EQ(both(true), "scheme has Cayley-Bacharach property\n" + line +
                            "scheme is arithmetically Gorenstein\n" + line);
  EXPECT_EQ(both(false), "scheme has NOT Cayley-Bacharach property\n" + line +
                             "scheme is NOT arithmetically Gorenstein\n" + line);
}

}  // namespace
}  // namespace zep::tests
