// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "arith/ordering.h"
#include "arith/polynomial.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

// A polynomial as a table of its non-zero coefficients.
using exponents = std::vector<int>;
using model = std::map<exponents, int>;

void add_term(model& f, const exponents& e, int c) {
  const int sum = (f[e] + c % Fp8::prime + Fp8::prime) % Fp8::prime;
  if (sum == 0) {
    f.erase(e);
  } else {
    f[e] = sum;
  }
}

model sum(model f, const model& g, int factor) {
  for (const auto& [e, c] : g) add_term(f, e, factor * c);
  return f;
}

exponents shifted(exponents e, const exponents& by) {
  for (std::size_t i = 0; i < e.size(); ++i) e[i] += by[i];
  return e;
}

model product(const model& f, const model& g) {
  model result;
  for (const auto& [e, c] : f) {
    for (const auto& [by, d] : g) add_term(result, shifted(e, by), c * d);
  }
  return result;
}

monom monom_of(const exponents& e) {
  monom m;
  for (int i = 0; i < m.dim(); ++i) m.set_exp(i, e[static_cast<std::size_t>(i)]);
  return m;
}

model model_of(const polynomial& f) {
  model result;
  for (int i = 0; i < f.no_of_monoms() && sign(f) != 0; ++i) {
    exponents e;
    for (int j = 0; j < f.term(i).dim(); ++j) e.push_back(f.term(i).exp(j));
    result[e] = f.coef(i).value();
  }
  return result;
}

void expect_well_formed(const polynomial& f) {
  if (f.coef(0) == 0) {
    ASSERT_EQ(f.no_of_monoms(), 1);
    ASSERT_EQ(sign(f.term(0)), 0);
    return;
  }
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    ASSERT_NE(f.coef(i).value(), 0);
    ASSERT_LT(f.coef(i).value(), Fp8::prime);
    ASSERT_TRUE(i == 0 || f.term(i) < f.term(i - 1)) << f;
  }
}

void expect_same(const polynomial& f, const model& expected) {
  expect_well_formed(f);
  ASSERT_EQ(model_of(f), expected) << f;
}

exponents random_exponents(std::mt19937& random) {
  exponents e;
  for (int i = 0; i < dim; ++i) e.push_back(below(random, 3));
  return e;
}

struct sample {
  polynomial f;
  model table;
};

sample random_sample(std::mt19937& random) {
  sample result;
  for (int terms = below(random, 9); terms > 0; --terms) {
    const exponents e = random_exponents(random);
    const int c = below(random, Fp8::prime);
    result.f += polynomial(monom_of(e), Fp8(c));
    add_term(result.table, e, c);
  }
  return result;
}

template <class Check>
void for_random_rings(Check check) {
  std::mt19937 random(9);
  for (const int p : {2, 3, 4, 101, 251}) {
    for (int n = 2; n <= 6; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        SCOPED_TRACE(testing::Message() << "p = " << p << ", n = " << n);
        for (int round = 0; round < 25; ++round) check(random);
      }
    }
  }
}

TEST(PolynomialProperty, SumsAndDifferencesAddCoefficients) {
  for_random_rings([](std::mt19937& random) {
    const sample a = random_sample(random);
    const sample b = random_sample(random);
    expect_same(a.f, a.table);
    expect_same(a.f + b.f, sum(a.table, b.table, 1));
    expect_same(a.f - b.f, sum(a.table, b.table, -1));
    polynomial c = a.f;
    c += b.f;
    ASSERT_EQ(c, a.f + b.f);
    c -= b.f;
    ASSERT_EQ(c, a.f);
    expect_same(-a.f, sum({}, a.table, -1));
  });
}

TEST(PolynomialProperty, ProductsMultiplyOut) {
  for_random_rings([](std::mt19937& random) {
    const sample a = random_sample(random);
    const sample b = random_sample(random);
    expect_same(a.f * b.f, product(a.table, b.table));
  });
}

TEST(PolynomialProperty, FieldElementsScaleEveryCoefficient) {
  for_random_rings([](std::mt19937& random) {
    const sample a = random_sample(random);
    const int c = below(random, Fp8::prime);
    expect_same(a.f * Fp8(c), sum({}, a.table, c));
    polynomial f = a.f;
    f *= Fp8(c);
    ASSERT_EQ(f, a.f * Fp8(c));
  });
}

TEST(PolynomialProperty, MonomialsShiftEveryTerm) {
  for_random_rings([](std::mt19937& random) {
    const sample a = random_sample(random);
    const exponents e = random_exponents(random);
    polynomial f = a.f;
    f *= monom_of(e);
    expect_same(f, product(a.table, {{e, 1}}));
  });
}

int degree(const exponents& e) {
  int sum_of_exponents = 0;
  for (const int exponent : e) sum_of_exponents += exponent;
  return sum_of_exponents;
}

int degree(const model& f) {
  int largest = 0;
  for (const auto& term : f) largest = std::max(largest, degree(term.first));
  return largest;
}

TEST(PolynomialProperty, HomFillsUpEveryTermToTheTopDegree) {
  for_random_rings([](std::mt19937& random) {
    const sample a = random_sample(random);
    polynomial h;
    hom(h, a.f);
    model expected;
    for (const auto& [e, c] : a.table) {
      exponents homogeneous = e;
      homogeneous.push_back(degree(a.table) - degree(e));
      expected[homogeneous] = c;
    }
    ASSERT_EQ(model_of(h), expected);
    ASSERT_EQ(h, a.f) << "the affine parts and their order stay";
  });
}

TEST(PolynomialProperty, OrderIsThatOfTheLeadingMonomials) {
  for_random_rings([](std::mt19937& random) {
    const polynomial f = random_sample(random).f;
    const polynomial g = random_sample(random).f;
    ASSERT_EQ(f < g, f.term(0) < g.term(0));
    ASSERT_EQ(f > g, g.term(0) < f.term(0));
  });
}

}  // namespace
}  // namespace zep::tests
