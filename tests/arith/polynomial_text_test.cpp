#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

#include "arith/polynomial.h"
#include "base/output.h"
#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

monom X() { return power_product({1, 0, 0}); }
monom Y() { return power_product({0, 1, 0}); }
monom Z() { return power_product({0, 0, 1}); }

std::string file_form(const polynomial& f) {
  std::ostringstream out;
  f.put(out);
  return out.str();
}

void expect_forms(const polynomial& f, const std::string& screen, const std::string& file) {
  counter = 0;
  EXPECT_EQ(text_of(f), screen);
  EXPECT_EQ(counter, static_cast<int>(screen.size()));
  EXPECT_EQ(file_form(f), file);
}

TEST(PolynomialText, ZeroHasABlankOnTheScreenOnly) {
  const ring_in_force ring;
  expect_forms(polynomial(0), " 0", "0");
}

TEST(PolynomialText, SignsStandBetweenTermsWithABlankOnEachSide) {
  const ring_in_force ring;
  expect_forms(
      sum_of({{1, power_product({2, 0, 0})}, {100, power_product({1, 1, 0})}, {3, monom(0)}}),
      "X^2 - XY + 3", "X2-XY+3");
}

TEST(PolynomialText, NegativeLeadingTermStartsWithItsSign) {
  const ring_in_force ring;
  expect_forms(sum_of({{100, X()}}), "- X", "-X");
  expect_forms(sum_of({{51, X()}, {51, Y()}}), "- 50X - 50Y", "-50X-50Y");
}

TEST(PolynomialText, CoefficientOneIsShownForConstantsOnly) {
  const ring_in_force ring;
  expect_forms(polynomial(1), "1", "1");
  expect_forms(polynomial(100), "- 1", "-1");
  expect_forms(sum_of({{1, X()}, {1, monom(0)}}), "X + 1", "X+1");
  expect_forms(sum_of({{2, X()}, {100, monom(0)}}), "2X - 1", "2X-1");
}

TEST(PolynomialText, CoefficientsChangeSignAtHalfThePrime) {
  const ring_in_force ring;
  expect_forms(sum_of({{50, X()}, {51, Y()}}), "50X - 50Y", "50X-50Y");
}

TEST(PolynomialText, EverythingIsPositiveModuloTwo) {
  const ring_in_force ring(2);
  expect_forms(sum_of({{1, X()}, {1, Y()}, {1, monom(0)}}), "X + Y + 1", "X+Y+1");
}

TEST(PolynomialText, ProjectiveTermsShowTheHomogenisingVariable) {
  const ring_in_force ring;
  expect_forms(sum_of({{1, projective({2, 0, 0, 0})}, {2, projective({0, 1, 0, 1})}}), "X^2 + 2YT",
               "X2+2YT");
}

TEST(PolynomialText, CounterRunsOnFromOnePolynomialToTheNext) {
  const ring_in_force ring;
  counter = 10;
  text_of(sum_of({{1, X()}, {100, Y()}}));
  EXPECT_EQ(counter, 15);
  text_of(polynomial(0));
  EXPECT_EQ(counter, 17);
  text_of(sum_of({{100, X()}}));
  EXPECT_EQ(counter, 20);
}

TEST(PolynomialText, FileFormLeavesTheCounterAndBreaksNoLine) {
  const ring_in_force ring;
  set_line_length(4);
  counter = 3;
  EXPECT_EQ(file_form(sum_of({{1, X()}, {1, Y()}, {1, Z()}})), "X+Y+Z");
  EXPECT_EQ(counter, 3);
}

TEST(PolynomialText, TermThatWouldReachTheLastColumnGoesToANewLine) {
  const ring_in_force ring;
  const polynomial f = sum_of({{1, X()}, {100, Y()}});
  // "X" and " - Y" take 1 and 4 columns; a line holds up to LL - 2.
  counter = 80 - 2 - 5;
  EXPECT_EQ(text_of(f), "X - Y");
  EXPECT_EQ(counter, 78);
  counter = 80 - 2 - 4;
  EXPECT_EQ(text_of(f), "X\n - Y");
  EXPECT_EQ(counter, 4);
}

TEST(PolynomialText, LineBreaksFollowTheLineLength) {
  const ring_in_force ring;
  const polynomial f = sum_of({{1, X()}, {1, Y()}, {1, Z()}, {1, monom(0)}});
  set_line_length(11);
  EXPECT_EQ(text_of(f), "X + Y + Z\n + 1");
  EXPECT_EQ(counter, 4);
  counter = 0;
  set_line_length(10);
  EXPECT_EQ(text_of(f), "X + Y\n + Z + 1");
  EXPECT_EQ(counter, 8);
}

TEST(PolynomialText, FirstTermNeverBreaksTheLine) {
  const ring_in_force ring;
  counter = 200;
  EXPECT_EQ(text_of(sum_of({{51, X()}})), "- 50X");
  EXPECT_EQ(counter, 205);
  EXPECT_EQ(text_of(polynomial(0)), " 0");
  EXPECT_EQ(counter, 207);
}

TEST(PolynomialText, TermWiderThanALineGetsALineOfItsOwn) {
  const ring_in_force ring;
  set_line_length(5);
  EXPECT_EQ(text_of(sum_of({{1, X()}, {3, Y()}, {50, Z()}})), "X\n + 3Y\n + 50Z");
  EXPECT_EQ(counter, 6);
}

// One term as it stands in a polynomial, put together from the printed field element.
std::string printed_term(const monom& m, Fp8 coef, bool first) {
  std::string number = text_of(coef);
  const bool negative = number[0] == '-';
  if (negative) number.erase(0, 1);
  const std::string factors = text_of(m);
  std::string text = negative ? " - " : " + ";
  if (first) text = negative ? "- " : "";
  if (factors == "1") return text + number;
  return text + (number == "1" ? "" : number) + factors;
}

TEST(PolynomialText, WidthsAreThoseOfThePrintedTerms) {
  std::mt19937 random(8);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p, 3);
    for (int round = 0; round < 100; ++round) {
      polynomial f(0);
      for (int i = 0; i < 12; ++i) {
        f += polynomial(power_product({below(random, 13), below(random, 3), below(random, 2)}),
                        Fp8(below(random, p)));
      }
      if (sign(f) == 0) continue;
      set_line_length(12 + below(random, 60));
      counter = below(random, 20);
      std::string expected;
      int column = counter;
      for (int i = 0; i < f.no_of_monoms(); ++i) {
        const std::string term = printed_term(f.term(i), f.coef(i), i == 0);
        const int width = static_cast<int>(term.size());
        const bool fits = i == 0 || column + width < LL - 1;
        expected += fits ? term : "\n" + term;
        column = fits ? column + width : width;
      }
      ASSERT_EQ(text_of(f), expected);
      ASSERT_EQ(counter, column);
    }
  }
}

}  // namespace
}  // namespace zep::tests
