// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/dual_module.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/points/module_of_points.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/plain_projections.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

// Member i as weights.
weights plain_member(const module_of_points& m, int i, const std::vector<weights>& projections,
                     const std::vector<coordinates>& points) {
  return times(projections[m.W.candidate(m.W.owner(i))], exponents_of(m.W.factor(i)), points);
}

exponents exponent_of(const dual_module& W, const points::order_ideal& X, int i) {
  return exponents_of(X.O[W.candidate(W.owner(i))] / W.factor(i));
}

TEST(DualModule, OfFiveGeneralPointsIsKnown) {
  const ring_in_force ring;
  const module_of_points m({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {3, 7, 11}});
  const dual_module& W = m.W;
  // The order ideal is 1, Z, Y, X, Z^2; the candidates are Y, X, Z^2.
  EXPECT_EQ(W.no_of_members(), 5);
  EXPECT_EQ(W.no_of_candidates(), 3);
  EXPECT_EQ(W.top_degree(), 2);
  EXPECT_EQ(W.owner(0), 2);
  EXPECT_EQ(W.owner(1), 2);
  EXPECT_EQ(W.owner(2), 0);
  EXPECT_EQ(W.owner(3), 1);
  EXPECT_EQ(W.factor(0), monomial({0, 0, 2}));
  EXPECT_EQ(W.factor(2), monom());
  EXPECT_TRUE(W.times(4, 2).is_member);
  EXPECT_EQ(W.times(4, 2).position, 1);
  EXPECT_FALSE(W.times(2, 1).is_member);
  // Y * pr_Y is Z^2 * pr_(Z^2) modulo X_0.
  const int b = W.times(2, 1).position;
  EXPECT_EQ(W.degree(b), 0);
  EXPECT_EQ(canonical_form(W, b, 1), (row{Fp8(1)}));
}

TEST(DualModule, OfNoPointsIsEmpty) {
  const ring_in_force ring(101, 2);
  const module_of_points m({});
  EXPECT_EQ(m.W.no_of_members(), 0);
  EXPECT_EQ(m.W.no_of_border(), 0);
  EXPECT_EQ(m.W.top_degree(), -1);
}

TEST(DualModule, FindsNothingThatIsNotInTheBorder) {
  const ring_in_force ring(101, 2);
  const module_of_points m({{0, 0}, {1, 0}, {0, 1}});
  // The candidates are Y and X, and 1 belongs to X.
  EXPECT_EQ(m.W.find(monom(), 1), -1);
  EXPECT_GE(m.W.find(monom(), 0), 0);
  EXPECT_EQ(m.W.find(monomial({-1, 0}), 5), -1);
  EXPECT_GE(m.W.find(monomial({-1, 0}), 1), 0);
}

TEST(DualModule, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    for (int b = 0; b < m.W.no_of_border(); ++b) {
      EXPECT_EQ(std::ssize(canonical_form(m.W, b, m.W.no_of_members())), m.W.no_of_members());
    }
  });
}

TEST(DualModuleProperty, MembersBelongToTheLastCandidateTheyDivide) {
  for_each_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    for (int i = 0; i < m.W.no_of_members(); ++i) {
      const exponents e = exponents_of(m.X.O[i]);
      int last = -1;
      for (int a = 0; a < m.W.no_of_candidates(); ++a) {
        if (divides(e, exponents_of(m.X.O[m.W.candidate(a)]))) last = a;
      }
      ASSERT_EQ(m.W.owner(i), last);
      ASSERT_EQ(exponent_of(m.W, m.X, i), e);
      ASSERT_EQ(m.W.degree_of_member(i), degree_of(e));
    }
  });
}

TEST(DualModuleProperty, ProductsAreFoundWhereTheyAre) {
  for_each_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    const dual_module& W = m.W;
    for (int i = 0; i < W.no_of_members(); ++i) {
      for (int v = 0; v < dim; ++v) {
        exponents e = exponents_of(m.X.O[i]);
        --e[v];
        const auto [is_member, position] = W.times(i, v);
        if (is_member) {
          ASSERT_EQ(W.owner(position), W.owner(i));
          ASSERT_EQ(exponent_of(W, m.X, position), e);
        } else {
          ASSERT_EQ(W.border(position).owner, W.owner(i));
          ASSERT_EQ(exponents_of(W.border(position).exponent), e);
          const int member = is_el_OO(m.X, monomial(e));
          ASSERT_TRUE(member < 0 || W.owner(member) != W.owner(i));
        }
      }
    }
  });
}

TEST(DualModuleProperty, TheBorderRisesInTheTermOrder) {
  for_each_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    for (int b = 0; b + 1 < m.W.no_of_border(); ++b) {
      const auto& smaller = m.W.border(b);
      const auto& greater = m.W.border(b + 1);
      ASSERT_TRUE(smaller.exponent > greater.exponent ||
                  (smaller.exponent == greater.exponent && smaller.owner > greater.owner));
      ASSERT_EQ(m.W.find(smaller.exponent, smaller.owner), b);
    }
  });
}

// Looks at each border element; returns how many coefficients are not zero.
int expect_products_in_the_module(const std::vector<coordinates>& points) {
  int not_zero = 0;
  const module_of_points m(points);
  const std::vector<weights> projections =
      plain_projections(plain_facts(points).order_ideal, points);
  std::vector<weights> members;
  for (int i = 0; i < m.W.no_of_members(); ++i) {
    members.push_back(plain_member(m, i, projections, points));
  }
  for (int b = 0; b < m.W.no_of_border(); ++b) {
    const row form = canonical_form(m.W, b, m.W.no_of_members());
    weights sum(points.size(), 0);
    for (int i = 0; i < m.W.no_of_members(); ++i) {
      const int c = form[i].value();
      not_zero += c == 0 ? 0 : 1;
      if (c == 0) continue;
      // X_0 has no negative powers.
      EXPECT_GE(m.W.degree_of_member(i), m.W.degree(b));
      for (std::size_t k = 0; k < sum.size(); ++k) {
        sum[k] = (sum[k] + c * members[i][k]) % Fp8::prime;
      }
    }
    exponents x_v(dim, 0);
    x_v[m.W.border(b).variable] = 1;
    EXPECT_EQ(sum, times(members[m.W.border(b).member], x_v, points));
    if (::testing::Test::HasFailure()) break;
  }
  return not_zero;
}

TEST(DualModuleProperty, CanonicalFormsAreTheProductsInTheModule) {
  int not_zero = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    not_zero += expect_products_in_the_module(points);
  });
  EXPECT_GT(not_zero, 10000);
}

// 36 members of degree 2 are no candidates, enough for products of matrices in several steps.
TEST(DualModuleProperty, CanonicalFormsOfManyPointsAreTheProductsInTheModule) {
  const ring_in_force ring(101, 8);
  std::mt19937 random(11);
  EXPECT_GT(expect_products_in_the_module(random_points(120, random)), 10000);
}

TEST(DualModuleProperty, CanonicalFormsOfManyElementsAreThoseOneByOne) {
  const ring_in_force ring(101, 8);
  std::mt19937 random(13);
  const module_of_points m(random_points(120, random));
  int b = 0;
  for (int d = m.W.top_degree(); d >= -1; --d) {
    std::vector<int> elements;
    for (int e = 0; e < m.W.no_of_border(); ++e) {
      if (m.W.degree(e) == d) elements.push_back(e);
    }
    const matrix forms = m.W.canonical_forms_of(elements, d, m.W.no_of_members());
    for (std::size_t r = 0; r < elements.size(); ++r, ++b) {
      const matrix one = m.W.canonical_forms_of({elements[r]}, d, m.W.no_of_members());
      ASSERT_EQ(elements_of(forms[static_cast<int>(r)]), elements_of(one[0]));
    }
  }
  EXPECT_EQ(b, m.W.no_of_border());
}

TEST(DualModuleProperty, CanonicalFormsModuloX0AreTheirFirstPart) {
  for_each_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    for (int b = 0; b < m.W.no_of_border(); ++b) {
      const int members = m.W.begin(m.W.degree(b) + 1);
      const row all = canonical_form(m.W, b, m.W.no_of_members());
      const row first = canonical_form(m.W, b, members);
      ASSERT_EQ(first, row(all.begin(), all.begin() + members));
    }
  });
}

TEST(DualModuleProperty, CanonicalFormsModuloX0AreSmallerInTheTermOrder) {
  for_each_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    for (int b = 0; b < m.W.no_of_border(); ++b) {
      const auto& [exponent, owner, member, variable_taken] = m.W.border(b);
      const row form = canonical_form(m.W, b, m.W.begin(m.W.degree(b) + 1));
      for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] == 0) continue;
        ASSERT_TRUE(m.X.O[i] > exponent ||
                    (m.X.O[i] == exponent && m.W.owner(static_cast<int>(i)) > owner));
      }
    }
  });
}

}  // namespace
}  // namespace zep::tests
