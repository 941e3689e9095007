// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "arith/ordering.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// A list of numbers that sorts as the monomial does.
std::vector<int> affine_key(const monom& m, term_order order) {
  std::vector<int> key;
  key.reserve(proj);
  for (int i = 0; i < proj - 1; ++i) key.push_back(m.exp(i));
  int degree = 0;
  for (const int e : key) degree += e;
  if (order == term_order::degrevlex) {
    std::reverse(key.begin(), key.end());
    for (int& e : key) e = -e;
  }
  key.insert(key.begin(), degree);
  return key;
}

std::vector<int> projective_key(const monom& m, term_order order) {
  std::vector<int> key = affine_key(m, order);
  key.push_back(m.exp(proj - 1));
  return key;
}

monom random_monom(std::mt19937& random, bool is_projective, int range) {
  monom m;
  if (is_projective) prj(m);
  for (int i = 0; i < m.dim(); ++i) m.set_exp(i, below(random, range));
  return m;
}

// Runs `check` for every dimension and order, on random affine or projective monomials.
template <class Check>
void for_random_monomials(bool are_projective, Check check) {
  std::mt19937 random(6);
  for (int n = 2; n <= 6; ++n) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(101, n, order);
      for (int round = 0; round < 400; ++round) {
        const monom a = random_monom(random, are_projective, 3);
        const monom b = random_monom(random, are_projective, 3);
        const monom c = random_monom(random, are_projective, 3);
        check(order, a, b, c);
      }
    }
  }
}

TEST(OrderingProperty, AffineOrdersSortByTheirKeys) {
  for_random_monomials(false, [](term_order order, const monom& a, const monom& b, const monom&) {
    const std::vector<int> left = affine_key(a, order);
    const std::vector<int> right = affine_key(b, order);
    ASSERT_EQ(a < b, left < right) << a << " " << b;
    ASSERT_EQ(a > b, left > right) << a << " " << b;
    ASSERT_EQ(a <= b, left <= right) << a << " " << b;
    ASSERT_EQ(a >= b, left >= right) << a << " " << b;
  });
}

TEST(OrderingProperty, ProjectiveOrdersSortByTheirKeys) {
  for_random_monomials(true, [](term_order order, const monom& a, const monom& b, const monom&) {
    const std::vector<int> left = projective_key(a, order);
    const std::vector<int> right = projective_key(b, order);
    ASSERT_EQ(a < b, left < right) << a << " " << b;
    ASSERT_EQ(a > b, left > right) << a << " " << b;
    ASSERT_EQ(a <= b, left <= right) << a << " " << b;
    ASSERT_EQ(a >= b, left >= right) << a << " " << b;
  });
}

TEST(OrderingProperty, AffineMonomialsCompareWithProjectiveOnesByTheirAffineParts) {
  for_random_monomials(true, [](term_order order, const monom& a, const monom& b, const monom&) {
    monom affine;
    for (int i = 0; i < proj - 1; ++i) affine.set_exp(i, b.exp(i));
    ASSERT_EQ(a < affine, affine_key(a, order) < affine_key(b, order)) << a << " " << b;
    ASSERT_EQ(affine < a, affine_key(b, order) < affine_key(a, order)) << a << " " << b;
    ASSERT_EQ(a <= affine, affine_key(a, order) <= affine_key(b, order)) << a << " " << b;
  });
}

void expect_total_order(const monom& a, const monom& b, const monom& c) {
  ASSERT_EQ((a < b) + (b < a) + (a == b), 1) << a << " " << b;
  ASSERT_EQ(a <= b, a < b || a == b) << a << " " << b;
  ASSERT_TRUE(!(a < b && b < c) || a < c) << a << " " << b << " " << c;
}

void expect_monotone(const monom& a, const monom& b, const monom& c) {
  ASSERT_EQ(a < b, a * c < b * c) << a << " " << b << " " << c;
  ASSERT_TRUE(monom(0) <= a) << a;
  ASSERT_TRUE(a <= a * c) << a << " " << c;
}

TEST(OrderingProperty, OrdersAreTotal) {
  const auto check = [](term_order, const monom& a, const monom& b, const monom& c) {
    expect_total_order(a, b, c);
  };
  for_random_monomials(false, check);
  for_random_monomials(true, check);
}

TEST(OrderingProperty, OrdersAreCompatibleWithMultiplication) {
  const auto check = [](term_order, const monom& a, const monom& b, const monom& c) {
    expect_monotone(a, b, c);
  };
  for_random_monomials(false, check);
  for_random_monomials(true, check);
}

TEST(OrderingProperty, DivisibilityMeansAQuotientWithoutNegativeExponents) {
  for_random_monomials(true, [](term_order, const monom& a, const monom& b, const monom&) {
    const monom quotient = b / a;
    bool divides = true;
    for (int i = 0; i < proj; ++i) divides = divides && quotient.exp(i) >= 0;
    ASSERT_EQ(Zn_order_le(a, b), divides) << a << " " << b;
    ASSERT_TRUE(!divides || a <= b) << a << " " << b;
  });
}

}  // namespace
}  // namespace zep::tests
