// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/order_ideal.h"

#include <gtest/gtest.h>

#include <utility>

#include "base/paranoid.h"
#include "tests/points/by_hand.h"
#include "tests/points/point_sets.h"
#include "tests/points/printed.h"

namespace zep::tests {
namespace {

TEST(OrderIdeal, FindsMonomialsByKey) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {2, 5}});
  for (int i = 0; i < X.s(); ++i) {
    EXPECT_EQ(is_el_OO(X, X.O[i]), i);
    EXPECT_EQ(is_el_G(X, X.O[i]), -1);
    EXPECT_EQ(is_el_B(X, X.O[i]), -1);
  }
  for (int b = 0; b < X.no_of_border(); ++b) {
    EXPECT_EQ(is_el_B(X, X.B[b]), b);
    EXPECT_EQ(is_el_OO(X, X.B[b]), -1);
  }
  for (int g = 0; g < X.Ix.no_of_gens(); ++g) EXPECT_EQ(is_el_G(X, X.Ix.lead(g)), g);
}

TEST(OrderIdeal, FindsMonomialsAlsoWhereOnesFillItUp) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{0, 0}, {0, 0}, {1, 0}, {2, 0}});
  ASSERT_EQ(X.O, (std::vector<monom>{monom(), variable(0), monomial({2, 0}), monom()}));
  EXPECT_EQ(is_el_OO(X, variable(0)), 1);
  EXPECT_EQ(is_el_OO(X, monomial({2, 0})), 2);
  EXPECT_EQ(is_el_OO(X, monom()), 0);
}

TEST(OrderIdeal, WithoutPointsFindsNothing) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({});
  EXPECT_EQ(is_el_OO(X, monom()), -1);
  EXPECT_EQ(is_el_OO(X, variable(0)), -1);
  EXPECT_EQ(is_el_B(X, variable(0)), -1);
  EXPECT_EQ(is_el_G(X, variable(0)), -1);
}

TEST(OrderIdeal, FindsAProjectiveMonomialByItsAffinePart) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{0, 0}, {1, 0}, {0, 1}});
  monom t = X.O[2];
  prj(t);
  t.set_exp(2, 5);
  EXPECT_EQ(is_el_OO(X, t), 2);
}

TEST(OrderIdeal, CountsItsPointsAndItsBorder) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = put_together(line_by_hand());
  EXPECT_EQ(X.s(), 3);
  EXPECT_EQ(X.no_of_border(), 4);
}

TEST(OrderIdeal, CountsTheDegreesOfItsMembers) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = put_together(line_by_hand());
  EXPECT_EQ(X.H.hilb_fct, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(X.H.sigma, 1);
  EXPECT_EQ(X.H.delta, 1);
  EXPECT_EQ(X.H.alpha, 1);
}

TEST(OrderIdeal, HandsOutItsRowsAsPolynomials) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = put_together(line_by_hand());
  EXPECT_EQ(printed(groebner_element(X, 0)), "X-2Y");
  EXPECT_EQ(printed(groebner_element(X, 1)), "Y3-3Y2+2Y");
  EXPECT_EQ(printed(separator_of(X, 1)), "-Y2+2Y");
  EXPECT_EQ(separator_degree(X, 1), 2);
}

TEST(OrderIdeal, WrittenDownIsTheOneThatTheWalkFinds) {
  const ring_in_force ring(101, 2);
  for (const auto& [written_down, points] : {std::pair(triangle_by_hand(), triangle_by_hand_points),
                                             std::pair(line_by_hand(), line_by_hand_points)}) {
    const points::order_ideal X = put_together(written_down);
    const points::order_ideal Y = walked(points);
    EXPECT_EQ(X.O, Y.O);
    EXPECT_EQ(X.B, Y.B);
    EXPECT_EQ(X.separator, Y.separator);
    ASSERT_EQ(X.Ix.no_of_gens(), Y.Ix.no_of_gens());
    for (int g = 0; g < X.Ix.no_of_gens(); ++g) {
      EXPECT_EQ(groebner_element(X, g), groebner_element(Y, g));
    }
  }
}

// Changes a part of the triangle, and expects that this is seen.
template <class Change>
void expect_broken(const char* invariant, Change change) {
  if (!paranoid) GTEST_SKIP() << "only the paranoid build looks";
  const ring_in_force ring(101, 2);
  order_ideal_parts X = triangle_by_hand();
  change(X);
  EXPECT_DEATH(put_together(X), std::string("broken: ") + invariant);
}

TEST(OrderIdealDeathTest, MembersThatDoNotAscendAbortTheParanoidBuild) {
  expect_broken("O and its border ascend", [](order_ideal_parts& X) { std::swap(X.O[1], X.O[2]); });
}

TEST(OrderIdealDeathTest, ABorderThatDoesNotAscendAbortsTheParanoidBuild) {
  expect_broken("O and its border ascend", [](order_ideal_parts& X) { std::swap(X.B[1], X.B[2]); });
}

TEST(OrderIdealDeathTest, AMemberWithoutADivisorAbortsTheParanoidBuild) {
  expect_broken("O is closed under division", [](order_ideal_parts& X) { X.O[2] = {2, 0}; });
}

TEST(OrderIdealDeathTest, ABorderThatLacksAMonomialAbortsTheParanoidBuild) {
  expect_broken("the border is that of O", [](order_ideal_parts& X) { X.B.pop_back(); });
}

TEST(OrderIdealDeathTest, ABorderWithAMonomialTooManyAbortsTheParanoidBuild) {
  expect_broken("the border is that of O", [](order_ideal_parts& X) { X.B.push_back({3, 0}); });
}

TEST(OrderIdealDeathTest, ABasisElementThatLeadsOutsideTheBorderAbortsTheParanoidBuild) {
  expect_broken("the Groebner basis is reduced", [](order_ideal_parts& X) { X.leads[2] = {3, 0}; });
}

TEST(OrderIdealDeathTest, ATailAboveItsLeadingMonomialAbortsTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "only the paranoid build looks";
  const ring_in_force ring(101, 2);
  order_ideal_parts X = line_by_hand();
  X.tails[0].push_back(Fp8(0));
  EXPECT_DEATH(put_together(X), "broken: the Groebner basis is reduced");
}

TEST(OrderIdealDeathTest, AMissingSeparatorAbortsTheParanoidBuild) {
  expect_broken("there is one separator for each point",
                [](order_ideal_parts& X) { X.separators.pop_back(); });
}

TEST(OrderIdealDeathTest, SeparatorsThatDoNotAddUpToOneAbortTheParanoidBuild) {
  expect_broken("the separators add up to 1",
                [](order_ideal_parts& X) { X.separators[1][2] += Fp8(1); });
  expect_broken("the separators add up to 1", [](order_ideal_parts& X) { X.separators[0][0] = 2; });
}

}  // namespace
}  // namespace zep::tests
