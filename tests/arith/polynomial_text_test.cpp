// SPDX-License-Identifier: GPL-3.0-or-later

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

// On a line that has reached the column.
std::string shown(const polynomial& f, int column) {
  std::ostringstream out;
  show(out, f, column);
  return out.str();
}

void expect_forms(const polynomial& f, const std::string& screen, const std::string& file) {
  EXPECT_EQ(text_of(f), screen);
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

TEST(PolynomialText, TermThatWouldReachTheLastColumnGoesToANewLine) {
  const ring_in_force ring;
  const polynomial f = sum_of({{1, X()}, {100, Y()}});
  // "X" and " - Y" take 1 and 4 columns; a line holds up to LL - 2.
  EXPECT_EQ(shown(f, LL - 2 - 5), "X - Y");
  EXPECT_EQ(shown(f, LL - 2 - 4), "X\n - Y");
}

TEST(PolynomialText, LinesBehindABreakStartAtColumnZero) {
  const ring_in_force ring;
  const polynomial f = sum_of({{1, X()}, {1, Y()}, {1, Z()}, {1, monom(0)}});
  EXPECT_EQ(shown(f, LL - 2 - 9), "X + Y + Z\n + 1");
  EXPECT_EQ(shown(f, LL - 2 - 8), "X + Y\n + Z + 1");
}

TEST(PolynomialText, InsertionStartsAtColumnZero) {
  const ring_in_force ring;
  std::ostringstream out;
  const polynomial f = sum_of({{1, X()}, {1, Y()}, {1, Z()}, {1, monom(0)}});
  out << std::string(LL, ' ');
  out << f;
  EXPECT_EQ(out.str(), std::string(LL, ' ') + "X + Y + Z + 1");
}

TEST(PolynomialText, FirstTermNeverBreaksTheLine) {
  const ring_in_force ring;
  EXPECT_EQ(shown(sum_of({{51, X()}}), 200), "- 50X");
  EXPECT_EQ(shown(polynomial(0), 200), " 0");
  EXPECT_EQ(shown(sum_of({{51, X()}, {1, Y()}, {1, Z()}}), 200), "- 50X\n + Y + Z");
}

// A monomial in all variables, wider than a line.
monom wide(int exponent) {
  monom m = projective_variable(0);
  m = static_cast<monom::exponent>(exponent);
  return m;
}

TEST(PolynomialText, TermWiderThanALineGetsALineOfItsOwn) {
  const ring_in_force ring(101, max_variables - 1);
  const polynomial f =
      sum_of({{2, wide(3333)}, {100, wide(2222)}, {3, wide(1111)}, {5, projective({1})}});
  ASSERT_GT(len(wide(1111)), LL);
  EXPECT_EQ(text_of(f), "2" + text_of(wide(3333)) + "\n - " + text_of(wide(2222)) + "\n + 3" +
                            text_of(wide(1111)) + "\n + 5X");
}

TEST(PolynomialText, LongestTermFitsTheRoomOfATerm) {
  const arith::ring_in_force ring(arith::ring{.p = 251, .n = max_variables - 1});
  const polynomial f = sum_of({{1, wide(32767)}, {126, wide(-32768)}});
  EXPECT_EQ(text_of(f), text_of(wide(32767)) + "\n - 125" + text_of(wide(-32768)));
  EXPECT_EQ(file_form(f).size(), text_of(f).size() - 3 - std::size_t{2} * max_variables);
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

polynomial random_polynomial(std::mt19937& random, int terms) {
  polynomial f(0);
  for (int i = 0; i < terms; ++i) {
    f += polynomial(power_product({below(random, 13), below(random, 3), below(random, 2)}),
                    Fp8(below(random, Fp8::prime)));
  }
  return f;
}

TEST(PolynomialText, WidthsAreThoseOfThePrintedTerms) {
  std::mt19937 random(8);
  int breaks = 0;
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p, 3);
    for (int round = 0; round < 200; ++round) {
      const polynomial f = random_polynomial(random, 1 + below(random, 60));
      if (sign(f) == 0) continue;
      const int start = below(random, LL + 10);
      std::string expected;
      int column = start;
      for (int i = 0; i < f.no_of_monoms(); ++i) {
        const std::string term = printed_term(f.term(i), f.coef(i), i == 0);
        const int width = static_cast<int>(term.size());
        const bool fits = i == 0 || column + width < LL - 1;
        expected += fits ? term : "\n" + term;
        column = fits ? column + width : width;
        breaks += fits ? 0 : 1;
      }
      ASSERT_EQ(shown(f, start), expected);
      ASSERT_EQ(text_of(f), shown(f, 0));
    }
  }
  EXPECT_GT(breaks, 1000);
}

TEST(PolynomialText, FileFormBreaksNoLine) {
  std::mt19937 random(10);
  const ring_in_force ring;
  const polynomial f = random_polynomial(random, 60);
  std::string expected = text_of(f);
  ASSERT_NE(expected.find('\n'), std::string::npos);
  std::erase_if(expected, [](char c) { return c == ' ' || c == '\n' || c == '^'; });
  EXPECT_EQ(file_form(f), expected);
}

}  // namespace
}  // namespace zep::tests
