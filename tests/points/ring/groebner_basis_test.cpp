// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/groebner_basis.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/points/point_sets.h"
#include "tests/points/printed.h"

namespace zep::tests {
namespace {

TEST(OverO, CombinationsListTheGreatestTermFirst) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), variable(1), variable(0)};
  const row coefs{Fp8(3), Fp8(0), Fp8(100)};
  EXPECT_EQ(printed(combination(coefs, O)), "-X+3");
  EXPECT_EQ(leading_position(coefs), 2);
  EXPECT_EQ(combination(row(3), O), polynomial(0));
  EXPECT_EQ(leading_position(row(3)), 0);
}

TEST(OverO, RowsMayBeShorterThanO) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), variable(1), variable(0)};
  EXPECT_EQ(printed(combination(row_of({1, 2}), O)), "2Y+1");
  EXPECT_EQ(leading_position(row_of({1, 0})), 0);
  EXPECT_EQ(combination(row(), O), polynomial(0));
  EXPECT_EQ(leading_position(row()), 0);
}

TEST(GroebnerBasis, HandsOutItsElements) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), variable(1), monomial({0, 2})};
  const groebner_basis Ix({variable(0), monomial({0, 3})}, {row_of({0, -2}), row_of({0, 2, -3})});
  ASSERT_EQ(Ix.no_of_gens(), 2);
  EXPECT_EQ(Ix.lead(1), monomial({0, 3}));
  EXPECT_EQ(elements_of(Ix.tail(0)), row_of({0, -2}));
  EXPECT_EQ(printed(Ix.gen(0, O)), "X-2Y");
  EXPECT_EQ(printed(Ix.gen(1, O)), "Y3-3Y2+2Y");
}

TEST(GroebnerBasis, FindsElementsByTheirLeadingMonomials) {
  const ring_in_force ring(101, 2);
  const groebner_basis Ix({variable(0), monomial({0, 3})}, {row_of({0, -2}), row_of({0, 2, -3})});
  EXPECT_EQ(Ix.find(variable(0)), 0);
  EXPECT_EQ(Ix.find(monomial({0, 3})), 1);
  EXPECT_EQ(Ix.find(monomial({0, 2})), -1);
}

TEST(GroebnerBasis, OfNothingHasNoElements) {
  const ring_in_force ring(101, 2);
  const groebner_basis none({}, {});
  EXPECT_EQ(none.no_of_gens(), 0);
  EXPECT_EQ(none.find(monom()), -1);
}

}  // namespace
}  // namespace zep::tests
