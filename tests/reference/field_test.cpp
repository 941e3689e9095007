// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/field.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

TEST(Field, PowMultipliesAsOftenAsTheExponentSays) {
  const ring_in_force ring(101);
  for (const int a : {0, 1, 2, 57, 100}) {
    Fp power(1);
    for (int n = 0; n <= 210; ++n) {
      ASSERT_EQ(pow(Fp(a), n), power) << a << "^" << n;
      ASSERT_EQ(pow(Fp(a), -n), power) << a << "^" << -n;
      power *= Fp(a);
    }
  }
}

TEST(Field, PowTakesTheMagnitudeOfTheSmallestExponent) {
  const ring_in_force ring(101);
  Fp power(3);
  for (int squarings = 0; squarings < 31; ++squarings) power *= power;
  EXPECT_EQ(pow(Fp(3), INT_MIN), power);
}

TEST(Field, FirstPowerIsTheElementItself) {
  const ring_in_force ring(101);
  EXPECT_EQ(pow(Fp(150), 1).value(), 150);
  EXPECT_EQ(pow(Fp(150), -1).value(), 150);
  EXPECT_EQ(pow(Fp(-1), 1).value(), -1);
}

TEST(Field, AbsFollowsThePrintedForm) {
  for (const int p : {2, 3, 4, 101, 251}) {
    const ring_in_force ring(p);
    for (int a = 0; a < p; ++a) {
      const int printed = std::stoi(text_of(Fp(a)));
      ASSERT_EQ(abs(Fp(a)).value(), printed < 0 ? -printed : printed) << a << " mod " << p;
    }
  }
}

TEST(Field, AbsTakesUnreducedValuesAsTheyAre) {
  const ring_in_force ring(101);
  for (const auto& [value, expected] :
       {std::pair(-3, -3), std::pair(-120, -120), std::pair(205, -104), std::pair(1200, -1099)}) {
    EXPECT_EQ(abs(Fp(value)).value(), expected) << value;
  }
}

TEST(Field, AbsOfTheNegativeOfZeroIsZero) {
  const ring_in_force ring(101);
  EXPECT_EQ(abs(-Fp(0)).value(), 0);
}

TEST(Field, LenOfARationalCountsSignDigitsAndSlash) {
  EXPECT_EQ(len(Rational(0)), 1);
  EXPECT_EQ(len(Rational(12)), 2);
  EXPECT_EQ(len(Rational(-12)), 3);
  EXPECT_EQ(len(Rational(-3, 4)), 4);
  EXPECT_EQ(len(Rational(22, 7)), 4);
  EXPECT_EQ(len(Rational("1" + std::string(40, '0'))), 41);
}

}  // namespace
}  // namespace zep::tests
