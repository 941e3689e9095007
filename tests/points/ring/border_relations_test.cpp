// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/border_relations.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_minimal_generators.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

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

// The multiples of the canonical forms of one degree.
struct forms_of_border {
  const points::order_ideal& set;
  const points::canonical_forms& forms;

  std::pair<int, int> origin(int b) const {
    return {forms.origin_of(b).border, forms.origin_of(b).variable};
  }

  template <class Use>
  void for_each_border_product(int b, int v, Use use) const {
    forms.for_each_product(forms.form(b), set.B[b].tot_deg(), v,
                           [&](Fp8 c, points::canonical_forms::product p) {
                             if (!p.in_O) use(c, p.position);
                           });
  }
};

// Expects the constants of all relations of degree d that come of one border monomial after the
// other, taken one by one and all together. Returns how many border monomials do not lead.
int others_in_relations(const points::order_ideal& set, int d) {
  const points::canonical_forms forms = Can_Lf(set);
  const forms_of_border border{set, forms};
  const plain_constants plain(set, forms);
  std::vector<int> elements;
  std::vector<int> leading;
  for (int g = 0; g < set.Ix.no_of_gens(); ++g) {
    if (set.Ix.lead(g).tot_deg() != d) continue;
    elements.push_back(g);
    leading.push_back(is_el_B(set, set.Ix.lead(g)));
  }
  const auto below = [&](int degree) {
    return static_cast<int>(std::count_if(set.B.begin(), set.B.end(),
                                          [&](const monom& t) { return t.tot_deg() < degree; }));
  };
  const border_relations relations(border, leading, below(d), below(d + 1));
  std::vector<decltype(relations)::pair> pairs;
  std::vector<row> expected;
  for (int P = forms.begin(d - 2); P < forms.begin(d - 1); ++P) {
    for (int w = 1; w < dim; ++w) {
      for (int v = 0; v < w; ++v) {
        if (forms.times(P, v).in_O || forms.times(P, w).in_O) continue;
        pairs.push_back({forms.times(P, v).position, w, forms.times(P, w).position, v});
        const row all = plain.of_relation({P, v, w});
        row constants;
        for (const int g : elements) constants.push_back(all[g]);
        expected.push_back(constants);
        const auto& [a, by_w, b, by_v] = pairs.back();
        EXPECT_EQ(relations.relation(a, by_w, b, by_v), constants);
      }
    }
  }
  EXPECT_EQ(relations.relations(pairs), expected);
  return below(d + 1) - below(d) - static_cast<int>(leading.size());
}

TEST(BorderRelationsProperty, AreThoseOfOneBorderMonomialAfterTheOther) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal set = walked(points);
    for (int d = 2; d <= set.H.sigma + 3; ++d) others_in_relations(set, d);
  });
}

// Here are more of them than are worked on together.
TEST(BorderRelationsProperty, OfLargerSetsAreThoseOfOneBorderMonomialAfterTheOther) {
  std::mt19937 random(67);
  const ring_in_force ring(101, 8);
  const points::order_ideal set = walked(random_points(330, random));
  EXPECT_GT(others_in_relations(set, 5), 128);
}

}  // namespace
}  // namespace zep::tests
