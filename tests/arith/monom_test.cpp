// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/monom.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <sstream>
#include <string>

#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

std::string file_form(const monom& m) {
  std::ostringstream out;
  put(out, m);
  return out.str();
}

monom random_monom(std::mt19937& random, int smallest, int largest) {
  monom m;
  for (int i = 0; i < m.dim(); ++i) m.set_exp(i, smallest + below(random, largest - smallest + 1));
  return m;
}

TEST(Monom, HoldsTheGivenExponentInEverySlot) {
  const ring_in_force ring;
  const monom m(5);
  EXPECT_EQ(m.dim(), 3);
  for (int i = 0; i < proj; ++i) EXPECT_EQ(m.exp(i), 5);
}

TEST(Monom, ZeroExponentsMakeOne) {
  const ring_in_force ring;
  for (const monom& one : {monom(0), monom()}) {
    EXPECT_EQ(text_of(one), "1");
    EXPECT_EQ(file_form(one), "1");
    EXPECT_EQ(sign(one), 0);
    EXPECT_EQ(len(one), 0);
    EXPECT_EQ(one.tot_deg(), 0);
    EXPECT_EQ(one.vars(), 0);
  }
}

TEST(Monom, HasAsManySlotsAsTheRing) {
  for (const int n : {2, 3, 6, max_variables - 1}) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(monom().dim(), n);
    EXPECT_EQ(projective_variable(0).dim(), n + 1);
  }
}

TEST(Monom, AssigningAnExponentSetsEverySlotAndKeepsTheDimension) {
  const ring_in_force ring;
  monom affine;
  affine = monom::exponent(2);
  EXPECT_EQ(affine.dim(), 3);
  EXPECT_EQ(affine.exp(3), 2);
  monom homogeneous = projective({1, 2, 3, 4});
  homogeneous = monom::exponent(7);
  EXPECT_EQ(homogeneous.dim(), 4);
  for (int i = 0; i < proj; ++i) EXPECT_EQ(homogeneous.exp(i), 7);
}

TEST(Monom, CopiesTakeDimensionAndExponents) {
  const ring_in_force ring;
  const monom source = projective({1, 2, 3, 4});
  const monom copy = source;
  monom assigned = power_product({5, 6, 7});
  assigned = source;
  for (const monom& m : {copy, assigned}) {
    EXPECT_EQ(m.dim(), 4);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(m.exp(i), i + 1);
  }
}

TEST(Monom, ChangingACopyLeavesTheSource) {
  const ring_in_force ring;
  const monom source = power_product({1, 2, 3});
  monom copy = source;
  copy.set_exp(0, 9);
  EXPECT_EQ(source.exp(0), 1);
}

TEST(Monom, TotDegNeverCountsTheHomogenisingVariable) {
  const ring_in_force ring;
  EXPECT_EQ(power_product({1, 2, 3}).tot_deg(), 6);
  EXPECT_EQ(projective({1, 2, 3, 9}).tot_deg(), 6);
  EXPECT_EQ(power_product({1, -2, 0}).tot_deg(), -1);
  EXPECT_EQ(power_product({1, 2, 3, 9}).tot_deg(), 6);
}

TEST(Monom, VarsCountsPositiveExponentsOfItsOwnSlots) {
  const ring_in_force ring;
  EXPECT_EQ(power_product({1, 0, 3}).vars(), 2);
  EXPECT_EQ(power_product({-1, 0, 3}).vars(), 1);
  EXPECT_EQ(projective({1, 0, 3, 2}).vars(), 3);
  EXPECT_EQ(monom(1).vars(), 3);
}

TEST(Monom, SignIsOneForAnyExponentInItsOwnSlots) {
  const ring_in_force ring;
  EXPECT_EQ(sign(power_product({0, 0, 1})), 1);
  EXPECT_EQ(sign(power_product({0, -1, 0})), 1);
  EXPECT_EQ(sign(projective({0, 0, 0, 1})), 1);
  EXPECT_EQ(sign(projective({0, 0, 0, 0})), 0);
  monom beyond;
  beyond.set_exp(3, 1);
  EXPECT_EQ(sign(beyond), 0);
}

TEST(Monom, LenIsTheWidthOfTheFactorsWithPositiveExponents) {
  const ring_in_force ring;
  EXPECT_EQ(len(power_product({12, 0, 0})), 4);
  EXPECT_EQ(len(power_product({1, 1, 0})), 2);
  EXPECT_EQ(len(power_product({2, 1, 3})), 7);
  EXPECT_EQ(len(power_product({-3, 1, 0})), 1);
  EXPECT_EQ(len(projective({0, 0, 1, 10})), 5);
  EXPECT_EQ(len(power_product({251, 0, 12345})), 5 + 7);
}

TEST(Monom, LenLooksAtItsOwnSlotsOnly) {
  const ring_in_force ring;
  EXPECT_EQ(len(monom(1)), 3);
  EXPECT_EQ(len(monom(2)), 9);
  EXPECT_EQ(len(projective({2, 2, 2, 2})), 12);
}

TEST(Monom, LenIsTheLengthOfTheTextExceptForOne) {
  std::mt19937 random(3);
  for (int n = 2; n <= 6; ++n) {
    const ring_in_force ring(101, n);
    for (int i = 0; i < 200; ++i) {
      monom m = random_monom(random, 0, i % 2 == 0 ? 2 : 12000);
      m.set_exp(0, 1);
      ASSERT_EQ(len(m), static_cast<int>(text_of(m).size())) << m;
    }
  }
}

TEST(Monom, EqualsOverTheSlotsThatBothHave) {
  const ring_in_force ring;
  EXPECT_TRUE(power_product({1, 2, 3}) == power_product({1, 2, 3}));
  EXPECT_TRUE(power_product({1, 2, 3}) != power_product({1, 2, 4}));
  EXPECT_TRUE(projective({1, 2, 3, 4}) == power_product({1, 2, 3}));
  EXPECT_TRUE(power_product({1, 2, 3}) == projective({1, 2, 3, 4}));
  EXPECT_TRUE(projective({1, 2, 3, 4}) != projective({1, 2, 3, 5}));
  EXPECT_TRUE(projective({1, 2, 3, 4}) != power_product({1, 2, 2}));
}

TEST(Monom, AffineEqualityIgnoresTheHomogenisingVariable) {
  const ring_in_force ring;
  EXPECT_TRUE(aff_eq(projective({1, 2, 3, 4}), projective({1, 2, 3, 5})));
  EXPECT_FALSE(aff_eq(projective({1, 2, 3, 4}), projective({1, 2, 4, 4})));
}

TEST(Monom, HashAgreesWithAffineEquality) {
  std::mt19937 random(4);
  const ring_in_force ring;
  for (int i = 0; i < 200; ++i) {
    const monom affine = random_monom(random, 0, 3);
    monom homogeneous = affine;
    prj(homogeneous);
    homogeneous.set_exp(3, below(random, 5));
    ASSERT_EQ(monom_hash()(affine), monom_hash()(homogeneous));
    ASSERT_TRUE(monom_equal()(affine, homogeneous));
  }
  EXPECT_FALSE(monom_equal()(power_product({1}), power_product({0, 1})));
  EXPECT_NE(monom_hash()(power_product({1})), monom_hash()(power_product({0, 1})));
}

TEST(Monom, ProductAndQuotientAddAndSubtractExponents) {
  std::mt19937 random(5);
  for (int n = 2; n <= 6; ++n) {
    const ring_in_force ring(101, n);
    for (int round = 0; round < 50; ++round) {
      const monom a = random_monom(random, -3, 9);
      const monom b = random_monom(random, -3, 9);
      const monom product = a * b;
      const monom quotient = a / b;
      for (int i = 0; i < n; ++i) {
        ASSERT_EQ(product.exp(i), a.exp(i) + b.exp(i));
        ASSERT_EQ(quotient.exp(i), a.exp(i) - b.exp(i));
      }
      ASSERT_TRUE(product / b == a);
    }
  }
}

TEST(Monom, ProductAndQuotientOfProjectiveMonomialsAreProjective) {
  const ring_in_force ring;
  const monom a = projective({1, 2, 3, 4});
  const monom b = projective({1, 1, 1, 1});
  EXPECT_EQ((a * b).dim(), 4);
  EXPECT_EQ(text_of(a * b), "X^2Y^3Z^4T^5");
  EXPECT_EQ((a / b).dim(), 4);
  EXPECT_EQ(text_of(a / b), "YZ^2T^3");
}

TEST(Monom, ProductAndQuotientAreOfTheKindOfTheLeftFactor) {
  const ring_in_force ring;
  const monom affine = power_product({1, 0, 0});
  const monom homogeneous = projective({1, 2, 3, 4});
  EXPECT_EQ((affine * homogeneous).dim(), 3);
  EXPECT_EQ(text_of(affine * homogeneous), "X^2Y^2Z^3");
  EXPECT_EQ((affine * homogeneous).exp(3), 0);
  EXPECT_EQ((affine / homogeneous).dim(), 3);
  EXPECT_EQ(text_of(affine / homogeneous), "Y^-2Z^-3");
  EXPECT_EQ((affine / homogeneous).exp(3), 0);
  EXPECT_EQ((homogeneous * affine).dim(), 4);
  EXPECT_EQ(text_of(homogeneous * affine), "X^2Y^2Z^3T^4");
  EXPECT_EQ((homogeneous / affine).dim(), 4);
  EXPECT_EQ(text_of(homogeneous / affine), "Y^2Z^3T^4");
}

TEST(Monom, ProductAndQuotientLeaveTheirOperands) {
  const ring_in_force ring;
  const monom a = power_product({1, 2, 3});
  const monom b = projective({4, 5, 6, 7});
  const monom product = a * b;
  const monom quotient = a / b;
  EXPECT_EQ(text_of(product), "X^5Y^7Z^9");
  EXPECT_EQ(text_of(quotient), "X^-3Y^-3Z^-3");
  EXPECT_EQ(text_of(a), "XY^2Z^3");
  EXPECT_EQ(text_of(b), "X^4Y^5Z^6T^7");
}

TEST(Monom, InPlaceOperationsKeepTheirOwnDimension) {
  const ring_in_force ring;
  monom homogeneous = projective({1, 2, 3, 4});
  homogeneous *= power_product({1, 1, 1});
  EXPECT_EQ(text_of(homogeneous), "X^2Y^3Z^4T^4");
  homogeneous *= projective({0, 0, 0, 2});
  EXPECT_EQ(text_of(homogeneous), "X^2Y^3Z^4T^6");
  homogeneous /= projective({2, 0, 1, 7});
  EXPECT_EQ(text_of(homogeneous), "Y^3Z^3T^-1");
  monom affine = power_product({1, 2, 3});
  affine *= projective({1, 1, 1, 1});
  EXPECT_EQ(text_of(affine), "X^2Y^3Z^4");
  affine /= projective({0, 3, 0, 1});
  EXPECT_EQ(text_of(affine), "X^2Z^4");
}

TEST(Monom, QuotientsMayHaveNegativeExponents) {
  const ring_in_force ring;
  const monom quotient = power_product({0, 2, 0}) / power_product({1, 0, 0});
  EXPECT_EQ(text_of(quotient), "X^-1Y^2");
  EXPECT_EQ(file_form(quotient), "X-1Y2");
  EXPECT_EQ(quotient.vars(), 1);
  EXPECT_EQ(quotient.tot_deg(), 1);
  EXPECT_EQ(len(quotient), 3);
}

TEST(Monom, ExponentsAreSixteenBitsWide) {
  const ring_in_force ring;
  monom m = power_product({251, 32767, -32768});
  EXPECT_EQ(text_of(m), "X^251Y^32767Z^-32768");
  EXPECT_EQ(m.tot_deg(), 250);
  m *= variable(1);
  EXPECT_EQ(m.exp(1), SHRT_MIN);
  m /= variable(2);
  EXPECT_EQ(m.exp(2), SHRT_MAX);
}

TEST(Monom, LcmAndGcdTakeSignedExtremesOverTheCommonSlots) {
  const ring_in_force ring;
  const monom a = power_product({1, -2, 3});
  const monom b = power_product({-1, 2, 3});
  EXPECT_EQ(text_of(lcm(a, b)), "XY^2Z^3");
  EXPECT_EQ(text_of(gcd(a, b)), "X^-1Y^-2Z^3");
  EXPECT_EQ(text_of(lcm(power_product({-5, 2, 0}), power_product({-3, 1, -1}))), "X^-3Y^2");
}

TEST(Monom, LcmAndGcdHaveTheDimensionAndTheRestOfTheFirst) {
  const ring_in_force ring;
  const monom affine = power_product({1, 5, 0});
  const monom homogeneous = projective({2, 3, 1, 4});
  EXPECT_EQ(text_of(lcm(homogeneous, affine)), "X^2Y^5ZT^4");
  EXPECT_EQ(text_of(gcd(homogeneous, affine)), "XY^3T^4");
  EXPECT_EQ(text_of(lcm(affine, homogeneous)), "X^2Y^5Z");
  EXPECT_EQ(text_of(gcd(affine, homogeneous)), "XY^3");
  EXPECT_EQ(text_of(lcm(homogeneous, projective({0, 0, 0, 5}))), "X^2Y^3ZT^5");
  EXPECT_EQ(text_of(gcd(homogeneous, projective({2, 2, 2, 2}))), "X^2Y^2ZT^2");
}

TEST(Monom, PrjMakesProjectiveWithoutTheHomogenisingVariable) {
  const ring_in_force ring;
  monom m(2);
  prj(m);
  EXPECT_EQ(m.dim(), 4);
  EXPECT_EQ(text_of(m), "X^2Y^2Z^2");
  monom again = projective({1, 0, 0, 5});
  prj(again);
  EXPECT_EQ(text_of(again), "X");
}

TEST(Monom, PrintsLettersWithTheExponentsThatAreNotOne) {
  const ring_in_force ring;
  EXPECT_EQ(text_of(power_product({2, 1, 3})), "X^2YZ^3");
  EXPECT_EQ(text_of(power_product({0, 1, 0})), "Y");
  EXPECT_EQ(text_of(projective({1, 0, 0, 4})), "XT^4");
  EXPECT_EQ(text_of(power_product({-1, 0, 0})), "X^-1");
}

TEST(Monom, FileFormHasNoCarets) {
  const ring_in_force ring;
  EXPECT_EQ(file_form(power_product({2, 1, 3})), "X2YZ3");
  EXPECT_EQ(file_form(projective({1, 0, 0, 4})), "XT4");
}

TEST(Monom, PrintsItsOwnSlotsOnly) {
  const ring_in_force ring;
  EXPECT_EQ(text_of(monom(1)), "XYZ");
  EXPECT_EQ(text_of(projective({1, 1, 1, 1})), "XYZT");
}

TEST(Monom, PrintsTheNamesInForce) {
  const arith::ring_in_force named(ring{.n = 3, .names = "pqrs"});
  EXPECT_EQ(text_of(projective({1, 2, 0, 1})), "pq^2s");
  EXPECT_EQ(file_form(projective({1, 2, 0, 1})), "pq2s");
}

TEST(Monom, PrintsAllTwentySevenVariables) {
  const ring_in_force ring(101, max_variables - 1);
  EXPECT_EQ(text_of(monom(1)), "XYZTabcdefghijklmnopqrstuv");
  monom all = projective_variable(0);
  all = monom::exponent(1);
  EXPECT_EQ(text_of(all), "XYZTabcdefghijklmnopqrstuvw");
}

TEST(Monom, VariableIsAffine) {
  const ring_in_force ring;
  const char* const names[] = {"X", "Y", "Z"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(text_of(variable(i)), names[i]);
    EXPECT_EQ(variable(i).dim(), 3);
    EXPECT_EQ(variable(i).exp(3), 0);
  }
}

TEST(Monom, ProjectiveVariableIsProjectiveAndTheLastOneHomogenises) {
  const ring_in_force ring;
  const char* const names[] = {"X", "Y", "Z", "T"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(text_of(projective_variable(i)), names[i]);
    EXPECT_EQ(projective_variable(i).dim(), 4);
  }
  EXPECT_EQ(projective_variable(2).tot_deg(), 1);
  EXPECT_EQ(projective_variable(3).tot_deg(), 0);
}

}  // namespace
}  // namespace zep::tests
