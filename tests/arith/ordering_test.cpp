// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/ordering.h"

#include <gtest/gtest.h>

#include "tests/arith/power_product.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Taken before any test changes them.
const term_order order_at_start = current_ring().order;
const monom_comparison lt_at_start = monom_ordering_lt;
const monom_comparison le_at_start = monom_ordering_le;
const monom_comparison proj_lt_at_start = proj_monom_ordering_lt;
const monom_comparison proj_le_at_start = proj_monom_ordering_le;

// The truth values of lt(a, b), lt(b, a), le(a, b), le(b, a) when a is the smaller one.
void expect_below(monom_comparison lt, monom_comparison le, const monom& a, const monom& b) {
  EXPECT_TRUE(lt(a, b)) << a << " " << b;
  EXPECT_FALSE(lt(b, a)) << a << " " << b;
  EXPECT_TRUE(le(a, b)) << a << " " << b;
  EXPECT_FALSE(le(b, a)) << a << " " << b;
}

void expect_level(monom_comparison lt, monom_comparison le, const monom& a, const monom& b) {
  EXPECT_FALSE(lt(a, b)) << a << " " << b;
  EXPECT_FALSE(lt(b, a)) << a << " " << b;
  EXPECT_TRUE(le(a, b)) << a << " " << b;
  EXPECT_TRUE(le(b, a)) << a << " " << b;
}

// The four operators when a is the smaller one.
void expect_operators_below(const monom& a, const monom& b) {
  EXPECT_TRUE(a < b) << a << " " << b;
  EXPECT_TRUE(a <= b) << a << " " << b;
  EXPECT_FALSE(a > b) << a << " " << b;
  EXPECT_FALSE(a >= b) << a << " " << b;
  EXPECT_TRUE(b > a) << a << " " << b;
  EXPECT_TRUE(b >= a) << a << " " << b;
  EXPECT_FALSE(b < a) << a << " " << b;
  EXPECT_FALSE(b <= a) << a << " " << b;
}

void expect_operators_level(const monom& a, const monom& b) {
  // cppcheck-suppress knownConditionTrueFalse ; the operators are what is tested
  EXPECT_FALSE(a < b || a > b || b < a || b > a) << a << " " << b;
  // cppcheck-suppress knownConditionTrueFalse
  EXPECT_TRUE(a <= b && a >= b && b <= a && b >= a) << a << " " << b;
}

TEST(Ordering, DegrevlexIsInForceAtStart) {
  EXPECT_EQ(order_at_start, term_order::degrevlex);
  EXPECT_EQ(lt_at_start, degrevlex_lt);
  EXPECT_EQ(le_at_start, degrevlex_le);
  EXPECT_EQ(proj_lt_at_start, proj_degrevlex_lt);
  EXPECT_EQ(proj_le_at_start, proj_degrevlex_le);
}

TEST(Ordering, ARingWithDegrevlexPutsItsFunctionsInForce) {
  const ring_in_force before(101, 3, term_order::deglex);
  const ring_in_force ring(101, 3, term_order::degrevlex);
  EXPECT_EQ(monom_ordering_lt, degrevlex_lt);
  EXPECT_EQ(monom_ordering_le, degrevlex_le);
  EXPECT_EQ(proj_monom_ordering_lt, proj_degrevlex_lt);
  EXPECT_EQ(proj_monom_ordering_le, proj_degrevlex_le);
}

TEST(Ordering, ARingWithDeglexPutsItsFunctionsInForce) {
  const ring_in_force ring(101, 3, term_order::deglex);
  EXPECT_EQ(monom_ordering_lt, deglex_lt);
  EXPECT_EQ(monom_ordering_le, deglex_le);
  EXPECT_EQ(proj_monom_ordering_lt, proj_deglex_lt);
  EXPECT_EQ(proj_monom_ordering_le, proj_deglex_le);
}

TEST(Ordering, LexDecidesAtTheFirstSlotByTheSmallerExponent) {
  const ring_in_force ring;
  expect_below(lex_lt, lex_le, power_product({0, 9, 9}), power_product({1, 0, 0}));
  expect_below(lex_lt, lex_le, power_product({1, 0, 9}), power_product({1, 1, 0}));
  expect_below(lex_lt, lex_le, power_product({1, 1, 0}), power_product({1, 1, 1}));
  expect_below(lex_lt, lex_le, power_product({-1, 0, 0}), power_product({0, 0, 0}));
  expect_level(lex_lt, lex_le, power_product({1, 2, 3}), power_product({1, 2, 3}));
}

TEST(Ordering, RevlexDecidesAtTheLastSlotByTheLargerExponent) {
  const ring_in_force ring;
  expect_below(revlex_lt, revlex_le, power_product({9, 9, 1}), power_product({0, 0, 0}));
  expect_below(revlex_lt, revlex_le, power_product({9, 2, 1}), power_product({0, 1, 1}));
  expect_below(revlex_lt, revlex_le, power_product({2, 1, 1}), power_product({1, 1, 1}));
  expect_below(revlex_lt, revlex_le, power_product({0, 0, 0}), power_product({0, 0, -1}));
  expect_level(revlex_lt, revlex_le, power_product({1, 2, 3}), power_product({1, 2, 3}));
}

TEST(Ordering, AffineOrdersIgnoreTheHomogenisingVariable) {
  const ring_in_force ring;
  const monom a = projective({1, 2, 3, 0});
  const monom b = projective({1, 2, 3, 7});
  expect_level(lex_lt, lex_le, a, b);
  expect_level(revlex_lt, revlex_le, a, b);
  expect_level(deglex_lt, deglex_le, a, b);
  expect_level(degrevlex_lt, degrevlex_le, a, b);
}

TEST(Ordering, DegreeDecidesFirst) {
  const ring_in_force ring;
  const monom small = power_product({2, 0, 0});
  const monom large = power_product({0, 0, 3});
  expect_below(deglex_lt, deglex_le, small, large);
  expect_below(degrevlex_lt, degrevlex_le, small, large);
}

TEST(Ordering, DegrevlexRanksTheVariablesAndLooksAtTheLastFirst) {
  const ring_in_force ring;
  const monom x = power_product({1, 0, 0});
  const monom y = power_product({0, 1, 0});
  const monom z = power_product({0, 0, 1});
  expect_operators_below(y, x);
  expect_operators_below(z, y);
  expect_operators_below(power_product({1, 0, 1}), power_product({0, 2, 0}));
}

TEST(Ordering, DeglexRanksTheVariablesAndLooksAtTheFirstFirst) {
  const ring_in_force ring(101, 3, term_order::deglex);
  const monom x = power_product({1, 0, 0});
  const monom y = power_product({0, 1, 0});
  const monom z = power_product({0, 0, 1});
  expect_operators_below(y, x);
  expect_operators_below(z, y);
  expect_operators_below(power_product({0, 2, 0}), power_product({1, 0, 1}));
}

TEST(Ordering, ProjectiveOrdersCompareAffinePartsFirst) {
  const ring_in_force ring;
  const monom xt = projective({1, 0, 0, 1});
  const monom xx = projective({2, 0, 0, 0});
  expect_below(proj_deglex_lt, proj_deglex_le, xt, xx);
  expect_below(proj_degrevlex_lt, proj_degrevlex_le, xt, xx);
  const monom xz = projective({1, 0, 1, 0});
  const monom yy = projective({0, 2, 0, 9});
  expect_below(proj_deglex_lt, proj_deglex_le, yy, xz);
  expect_below(proj_degrevlex_lt, proj_degrevlex_le, xz, yy);
}

TEST(Ordering, ProjectiveOrdersPutTheSmallerHomogenisingPowerFirst) {
  const ring_in_force ring;
  const monom xt = projective({1, 0, 0, 1});
  const monom xtt = projective({1, 0, 0, 2});
  expect_below(proj_deglex_lt, proj_deglex_le, xt, xtt);
  expect_below(proj_degrevlex_lt, proj_degrevlex_le, xt, xtt);
  expect_level(proj_deglex_lt, proj_deglex_le, xt, xt);
  expect_level(proj_degrevlex_lt, proj_degrevlex_le, xt, xt);
}

TEST(Ordering, OperatorsUseTheProjectiveOrderForTwoProjectiveMonomials) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 3, order);
    expect_operators_below(projective({1, 0, 0, 1}), projective({1, 0, 0, 2}));
    expect_operators_below(projective({1, 0, 0, 1}), projective({2, 0, 0, 0}));
    expect_operators_level(projective({1, 0, 0, 1}), projective({1, 0, 0, 1}));
  }
}

TEST(Ordering, OperatorsUseTheAffineOrderForAnAffineAndAProjectiveMonomial) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 3, order);
    expect_operators_level(power_product({1, 0, 0}), projective({1, 0, 0, 5}));
    expect_operators_level(projective({1, 0, 0, 5}), power_product({1, 0, 0}));
    expect_operators_below(projective({0, 1, 0, 5}), power_product({1, 0, 0}));
    expect_operators_below(power_product({0, 1, 0}), projective({1, 0, 0, 0}));
  }
}

TEST(Ordering, OperatorsFollowTheOrderInForce) {
  const ring_in_force degrevlex;
  const monom xz = power_product({1, 0, 1});
  const monom yy = power_product({0, 2, 0});
  const monom xzt = projective({1, 0, 1, 1});
  const monom yyt = projective({0, 2, 0, 1});
  const auto expect_below_in_all_kinds = [](const monom& a, const monom& at, const monom& b,
                                            const monom& bt) {
    expect_operators_below(a, b);
    expect_operators_below(at, bt);
    expect_operators_below(a, bt);
    expect_operators_below(at, b);
  };
  expect_below_in_all_kinds(xz, xzt, yy, yyt);
  {
    const ring_in_force deglex(101, 3, term_order::deglex);
    expect_below_in_all_kinds(yy, yyt, xz, xzt);
  }
  expect_below_in_all_kinds(xz, xzt, yy, yyt);
}

TEST(Ordering, DivisibilityIsComponentwise) {
  const ring_in_force ring;
  const monom a = power_product({1, 0, 2});
  EXPECT_TRUE(Zn_order_le(a, power_product({1, 1, 2})));
  EXPECT_FALSE(Zn_order_le(power_product({1, 1, 2}), a));
  EXPECT_TRUE(Zn_order_le(a, a));
  const monom incomparable = power_product({5, 5, 1});
  EXPECT_FALSE(Zn_order_le(a, incomparable) || Zn_order_le(incomparable, a));
  EXPECT_TRUE(Zn_order_le(power_product({-1, 0, 0}), power_product({0, 0, 0})));
}

TEST(Ordering, DivisibilityLooksAtTheSlotsOfTheFirstMonomial) {
  const ring_in_force ring;
  EXPECT_FALSE(Zn_order_le(projective({1, 0, 0, 2}), projective({1, 0, 0, 1})));
  EXPECT_TRUE(Zn_order_le(power_product({1, 0, 0}), projective({1, 0, 0, 1})));
  EXPECT_FALSE(Zn_order_le(projective({1, 0, 0, 1}), power_product({1, 0, 0})));
}

}  // namespace
}  // namespace zep::tests
