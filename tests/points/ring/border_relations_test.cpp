// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/border_relations.h"

#include <gtest/gtest.h>

#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

const int X = 0;
const int Y = 1;

// The border of 1, Y, X, Y^2 modulo X_0, where XY is a * Y^2 and X^2 is b * Y^2. The cubes are 0.
//
//     0  XY      1  X^2      2  Y^3      3  XY^2 = Y * XY
struct small_border {
  Fp8 a;
  Fp8 b;

  static std::pair<int, int> origin(int i) { return i == 3 ? std::pair(0, Y) : std::pair(-1, -1); }

  // Y^2 * x_v.
  template <class Use>
  void for_each_border_product(int i, int v, Use use) const {
    const Fp8 c = i == 0 ? a : b;
    if (i < 2 && c != 0) use(c, v == Y ? 2 : 3);
  }
};

// X * (XY - a Y^2) - Y * (X^2 - b Y^2), once the monomials have cancelled, is -a XY^2 + b Y^3. With
// XY^2 = Y * (XY - a Y^2) + a Y^3 this is Y^3, a basis element, times b - a^2, up to sign.
TEST(BorderRelations, FindTheConstantAtAnElementThatAnotherLeadsTo) {
  const ring_in_force ring(101, 2);
  for (int a = 0; a < 5; ++a) {
    for (int b = 0; b < 5; ++b) {
      const small_border border{Fp8(a), Fp8(b)};
      const border_relations cubes(border, {2}, 2, 4);
      EXPECT_EQ(cubes.relation(0, X, 1, Y), row_of({a * a - b})) << a << " " << b;
    }
  }
}

TEST(BorderRelations, HaveAnEntryForEachLeadingElementInTheOrderGiven) {
  const ring_in_force ring(101, 2);
  const small_border border{Fp8(7), Fp8(5)};
  EXPECT_EQ(border_relations(border, {2, 3}, 2, 4).relation(0, X, 1, Y), row_of({-5, 7}));
  EXPECT_EQ(border_relations(border, {3, 2}, 2, 4).relation(0, X, 1, Y), row_of({7, -5}));
}

TEST(BorderRelations, TakeTheSecondProductFromTheFirst) {
  const ring_in_force ring(101, 2);
  const small_border border{Fp8(7), Fp8(5)};
  const border_relations cubes(border, {2, 3}, 2, 4);
  EXPECT_EQ(cubes.relation(0, Y, 1, X), row_of({7, -5}));
  EXPECT_EQ(cubes.relation(1, Y, 0, X), row_of({5, -7}));
  EXPECT_EQ(cubes.relation(0, X, 0, X), row_of({0, 0}));
}

TEST(BorderRelations, HaveNoConstantsAtWhatNeitherLeadsNorComesFromAnything) {
  const ring_in_force ring(101, 2);
  const small_border border{Fp8(7), Fp8(5)};
  const border_relations cubes(border, {3}, 2, 4);
  EXPECT_EQ(cubes.relation(0, X, 1, Y), row{Fp8(7)});
  EXPECT_EQ(cubes.relation(0, Y, 1, Y), row{Fp8(0)});
}

TEST(BorderRelations, WithoutLeadingElementsHaveNoEntries) {
  const ring_in_force ring(101, 2);
  const small_border border{Fp8(7), Fp8(5)};
  EXPECT_TRUE(border_relations(border, {}, 2, 4).relation(0, X, 1, Y).empty());
}

// What is reached from a border element whose form is 0 modulo X_0 has no constants either.
TEST(BorderRelations, OfQuadricsThatAreZeroAreZero) {
  const ring_in_force ring(101, 2);
  const small_border border{Fp8(0), Fp8(0)};
  const border_relations cubes(border, {2}, 2, 4);
  EXPECT_EQ(cubes.relation(0, X, 1, Y), row{Fp8(0)});
}

}  // namespace
}  // namespace zep::tests
