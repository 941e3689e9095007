// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/module_monomials.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

using points::module_monomial;
using points::numbered_monomials;

module_monomial in(int component, const exponents& e) { return {monomial(e), component}; }

TEST(ModuleMonomials, StandByComponentsAndInOneTheGreatestFirst) {
  const ring_in_force ring(101, 2);
  EXPECT_TRUE(precedes(in(0, {0, 0}), in(1, {2, 0})));
  EXPECT_TRUE(precedes(in(1, {1, 0}), in(1, {0, 1})));
  EXPECT_FALSE(precedes(in(1, {0, 1}), in(1, {1, 0})));
  EXPECT_FALSE(precedes(in(1, {0, 1}), in(1, {0, 1})));
}

TEST(ModuleMonomials, AreSortedAndTellWhereTheyWent) {
  const ring_in_force ring(101, 2);
  std::vector<module_monomial> monomials = {in(1, {0, 1}), in(0, {0, 0}), in(1, {1, 0})};
  EXPECT_EQ(sort(monomials), (std::vector<int>{2, 0, 1}));
  EXPECT_EQ(monomials[0].component, 0);
  EXPECT_EQ(monomials[1].m, variable(0));
  EXPECT_EQ(monomials[2].m, variable(1));
}

TEST(ModuleMonomials, OfAnEmptyListAreSorted) {
  const ring_in_force ring(101, 2);
  std::vector<module_monomial> none;
  EXPECT_TRUE(sort(none).empty());
}

TEST(NumberedMonomials, GetNumbersAsTheyCome) {
  const ring_in_force ring(101, 2);
  numbered_monomials numbered;
  EXPECT_EQ(numbered.number(in(1, {1, 0})), 0);
  EXPECT_EQ(numbered.number(in(0, {1, 0})), 1);
  EXPECT_EQ(numbered.number(in(1, {0, 1})), 2);
  EXPECT_EQ(numbered.number(in(0, {1, 0})), 1);
  ASSERT_EQ(numbered.monomials().size(), 3U);
  EXPECT_EQ(numbered.monomials()[1].component, 0);
}

TEST(NumberedMonomials, AreToldApartByAffineParts) {
  const ring_in_force ring(101, 2);
  numbered_monomials numbered;
  EXPECT_EQ(numbered.number({projective({1, 0, 1}), 0}), 0);
  EXPECT_EQ(numbered.number({projective({1, 0, 2}), 0}), 0);
  EXPECT_EQ(numbered.monomials()[0].m.exp(2), 1);
}

TEST(NumberedMonomialsProperty, HaveTheNumbersOfASearch) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(5);
  numbered_monomials numbered;
  for (int i = 0; i < 2000; ++i) {
    const module_monomial t = in(below(random, 3), {below(random, 4), below(random, 4), 1});
    int expected = 0;
    for (const module_monomial& before : numbered.monomials()) {
      if (before.component == t.component && before.m == t.m) break;
      ++expected;
    }
    ASSERT_EQ(numbered.number(t), expected);
  }
}

}  // namespace
}  // namespace zep::tests
