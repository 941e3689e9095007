// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/form_vectors.h"

#include <gtest/gtest.h>

#include "arith/ordering.h"
#include "tests/arith/power_product.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

monom X(int e = 1) { return projective({e}); }
monom Y(int e = 1) { return projective({0, e}); }
monom Z(int e = 1) { return projective({0, 0, e}); }

using components = std::vector<std::vector<polynomial>>;

TEST(FormVectors, GiveTheirComponentsBack) {
  const ring_in_force ring(101, 2);
  const components given = {{sum_of({{1, X()}, {3, Z()}}), polynomial(0)},
                            {polynomial(0), polynomial(0)},
                            {polynomial(Z()), sum_of({{100, Y()}, {2, Z()}})}};
  const form_vectors vectors = vectors_of(given, 2);
  EXPECT_EQ(vectors.rank(), 2);
  EXPECT_EQ(vectors.count(), 3);
  EXPECT_EQ(vectors.no_of_nonzero(), 2);
  EXPECT_EQ(vectors.monomials(), (std::vector<monom>{X(), Y(), Z()}));
  EXPECT_EQ(vectors.width(), 6U);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(vectors.components(i), given[i]);
}

TEST(FormVectors, BeginInTheGreatestComponentTheFirstOfSeveral) {
  const ring_in_force ring(101, 2);
  const form_vectors vectors = vectors_of({{polynomial(Y()), polynomial(X()), polynomial(X())},
                                           {polynomial(0), polynomial(Z()), polynomial(Y())},
                                           {polynomial(0), polynomial(0), polynomial(0)}},
                                          3);
  EXPECT_EQ(vectors.position(0), 1);
  EXPECT_EQ(vectors.leading_monomial(0), X());
  EXPECT_EQ(vectors.position(1), 2);
  EXPECT_EQ(vectors.leading_monomial(1), Y());
  EXPECT_EQ(vectors.position(2), -1);
}

TEST(FormVectors, AreInterreducedOneByOne) {
  const ring_in_force ring(101, 2);
  form_vectors vectors = vectors_of({{sum_of({{2, X()}, {4, Y()}}), polynomial(0)},
                                     {sum_of({{1, X()}, {3, Y()}}), polynomial(Z())},
                                     {sum_of({{1, X()}, {2, Y()}}), polynomial(0)}},
                                    2);
  vectors.interreduce();
  EXPECT_EQ(vectors.components(0), (std::vector{sum_of({{1, X()}, {2, Y()}}), polynomial(0)}));
  EXPECT_EQ(vectors.components(1), (std::vector{polynomial(Y()), polynomial(Z())}));
  EXPECT_EQ(vectors.position(2), -1);
  EXPECT_EQ(vectors.no_of_nonzero(), 2);
  vectors.drop_zero_vectors();
  EXPECT_EQ(vectors.count(), 2);
}

TEST(FormVectors, OfNothingAreNone) {
  const ring_in_force ring(101, 2);
  form_vectors vectors = vectors_of({}, 0);
  vectors.interreduce();
  EXPECT_EQ(vectors.count(), 0);
  EXPECT_EQ(vectors.rank(), 0);
  EXPECT_EQ(vectors.width(), 0U);
}

TEST(ProjectiveVariables, AreThoseOfTheRingWithTheHomogenisingOneLast) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 3, order);
    const std::vector<monom> variables = projective_variables();
    EXPECT_EQ(dim, 3);
    ASSERT_EQ(variables.size(), 4U);
    for (int v = 0; v < 4; ++v) {
      EXPECT_EQ(variables[v].exp(v), 1);
      EXPECT_EQ(variables[v].dim(), 4);
      if (v > 0) {
        EXPECT_TRUE(variables[v - 1] > variables[v]);
      }
    }
  }
}

}  // namespace
}  // namespace zep::tests
