// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/polynomials.h"

#include <gtest/gtest.h>

#include <random>

#include "arith/ordering.h"
#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

monom X() { return power_product({1, 0, 0}); }
monom Y() { return power_product({0, 1, 0}); }

monom random_monom(std::mt19937& random, bool is_projective) {
  monom m;
  if (is_projective) prj(m);
  for (int i = 0; i < m.dim(); ++i) m.set_exp(i, below(random, 3));
  return m;
}

TEST(Polynomials, ProperDivisibilityIsComponentwise) {
  const ring_in_force ring;
  const monom a = power_product({1, 0, 2});
  EXPECT_TRUE(Zn_order_lt(a, power_product({1, 1, 2})));
  EXPECT_FALSE(Zn_order_lt(power_product({1, 1, 2}), a));
  EXPECT_FALSE(Zn_order_lt(a, a));
  const monom incomparable = power_product({5, 5, 1});
  EXPECT_FALSE(Zn_order_lt(a, incomparable) || Zn_order_lt(incomparable, a));
  EXPECT_TRUE(Zn_order_lt(power_product({-1, 0, 0}), power_product({0, 0, 0})));
}

TEST(Polynomials, ProperDivisibilityLooksAtTheSlotsOfTheFirstMonomial) {
  const ring_in_force ring;
  EXPECT_TRUE(Zn_order_lt(projective({1, 0, 0, 0}), projective({1, 0, 0, 1})));
  EXPECT_FALSE(Zn_order_lt(power_product({1, 0, 0}), projective({1, 0, 0, 1})));
  EXPECT_FALSE(Zn_order_lt(projective({1, 0, 0, 1}), power_product({2, 0, 0})));
}

TEST(Polynomials, ProperDivisibilityIsDivisibilityByAQuotientThatIsNotOne) {
  std::mt19937 random(6);
  int proper = 0;
  for (int n = 2; n <= 6; ++n) {
    const ring_in_force ring(101, n);
    for (int round = 0; round < 800; ++round) {
      const bool is_projective = round % 2 == 0;
      const monom a = random_monom(random, is_projective);
      const monom b = random_monom(random, is_projective);
      ASSERT_EQ(Zn_order_lt(a, b), Zn_order_le(a, b) && sign(b / a) == 1) << a << " " << b;
      ASSERT_TRUE(!Zn_order_lt(a, b) || a < b) << a << " " << b;
      proper += Zn_order_lt(a, b) ? 1 : 0;
    }
  }
  EXPECT_GT(proper, 100);
}

TEST(Polynomials, IsPrjIsTheHomogenisingExponentOfTheLeadingTerm) {
  const ring_in_force ring;
  EXPECT_EQ(is_prj(polynomial(projective({1, 0, 0, 7}))), 7);
  EXPECT_EQ(is_prj(polynomial(projective({1, 0, 0, -1}))), -1);
  EXPECT_EQ(is_prj(sum_of({{1, projective({1, 0, 0, 0})}, {1, projective({0, 0, 0, 1})}})), 0);
  EXPECT_EQ(is_prj(polynomial(X())), 0);
}

TEST(Polynomials, LeadingFormIsTheTopDegreePart) {
  const ring_in_force ring;
  const polynomial f = sum_of(
      {{1, power_product({2, 0, 0})}, {1, power_product({1, 1, 0})}, {1, Y()}, {1, monom(0)}});
  EXPECT_EQ(text_of(Lf(f)), "X^2 + XY");
  EXPECT_EQ(Lf(Lf(f)), Lf(f));
  EXPECT_EQ(Lf(polynomial(5)), polynomial(5));
  EXPECT_EQ(Lf(polynomial(0)), polynomial(0));
}

TEST(Polynomials, LeadingFormCountsAffineDegreesInProjectivePolynomials) {
  const ring_in_force ring;
  const polynomial f = sum_of({{1, projective({2, 0, 0, 0})},
                               {1, projective({1, 1, 0, 0})},
                               {1, projective({0, 1, 0, 1})}});
  EXPECT_EQ(text_of(Lf(f)), "X^2 + XY");
}

TEST(Polynomials, LeadingFormHasTheTermsOfTopDegree) {
  std::mt19937 random(9);
  for (const int p : {2, 3, 4, 101, 251}) {
    for (int n = 2; n <= 6; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        for (int round = 0; round < 25; ++round) {
          polynomial f;
          for (int terms = below(random, 9); terms > 0; --terms) {
            f += polynomial(random_monom(random, false), Fp8(below(random, p)));
          }
          polynomial expected;
          for (int i = 0; i < f.no_of_monoms(); ++i) {
            if (f.term(i).tot_deg() != f.term(0).tot_deg()) continue;
            expected += polynomial(f.term(i), f.coef(i));
          }
          ASSERT_EQ(Lf(f), expected) << f;
        }
      }
    }
  }
}

}  // namespace
}  // namespace zep::tests
