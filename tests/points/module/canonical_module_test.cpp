// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/canonical_module.h"

#include <gtest/gtest.h>

#include "tests/points/computed_presentation.h"
#include "tests/points/computing.h"

namespace zep::tests {
namespace {

std::string file_form(const polynomial& f) {
  std::ostringstream out;
  f.put(out);
  return out.str();
}

TEST(Omega, OfOnePointIsCyclicWithLinearRelations) {
  const ring_in_force ring(101, 2);
  const presentation w_R = computed({{5, 7}});
  EXPECT_EQ(w_R.pr, std::vector<int>{0});
  EXPECT_EQ(w_R.pr_monom, std::vector<monom>{monom()});
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{1}));
  EXPECT_EQ(w_R.sigma, -1);
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 2}));
  ASSERT_EQ(w_R.A_d_cols, 2);
  EXPECT_EQ(file_form(w_R.entry(0, 0)), "X-5Z");
  EXPECT_EQ(file_form(w_R.entry(0, 1)), "Y-7Z");
}

TEST(Omega, OfTwoPointsHasTheLineAndAQuadric) {
  const ring_in_force ring(101, 2);
  const presentation w_R = computed({{0, 0}, {2, 1}});
  EXPECT_EQ(w_R.pr_monom, std::vector<monom>{variable(1)});
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 1, 1}));
  ASSERT_EQ(w_R.A_d_cols, 2);
  EXPECT_EQ(file_form(w_R.entry(0, 0)), "X-2Y");
  EXPECT_EQ(file_form(w_R.entry(0, 1)), "Y2-YZ");
}

TEST(Omega, OfThreePointsOffALineHasThreeRelationsOfTwoGenerators) {
  const ring_in_force ring(101, 2);
  const presentation w_R = computed({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 2}));
  EXPECT_EQ(w_R.pr_monom, (std::vector<monom>{variable(1), variable(0)}));
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 3}));
}

TEST(Omega, OfCollinearPointsIsThatOfTheirEquations) {
  const ring_in_force ring(101, 3);
  const presentation w_R = computed({{0, 0, 0}, {1, 2, 3}, {2, 4, 6}, {3, 6, 9}});
  ASSERT_EQ(w_R.no_of_pr(), 1);
  EXPECT_EQ(w_R.pr_monom[0], monomial({0, 0, 3}));
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 0, 0, 1}));
  EXPECT_EQ(w_R.A_d_cols, 3);
  EXPECT_EQ(w_R.A_d_maxdeg, 4);
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 2, 0, 0, 1}));
}

TEST(Omega, OfFiveGeneralPointsOfSpaceHasOneGenerator) {
  const ring_in_force ring;
  const presentation w_R = computed(points_of_frame());
  EXPECT_EQ(w_R.pr, std::vector<int>{4});
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 0, 1}));
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 0, 5}));
}

TEST(Omega, MayHaveGeneratorsAndRelationsOfSeveralDegrees) {
  const ring_in_force ring(101, 3);
  // Generators of degree 1 and 2: two points off a line with three.
  const presentation w_R = computed({{0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {0, 1, 0}, {1, 0, 0}});
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 2, 1}));
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 2, 6}));
}

TEST(Omega, TellsItsStages) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{0, 0}, {1, 0}, {0, 1}});
  told reporter;
  omega(X, reporter);
  EXPECT_EQ(reporter.out, "");
  EXPECT_EQ(reporter.err, "calculating canonical forms ...\n[5][4][3][2][1]\n" + line +
                              "4 syzygies among 2 projections found.\n" + line +
                              "rewriting syzygies ...\n[4][3][2][1]\n"
                              "eliminating syzygies ...\n[4][3][2][1]\n"
                              "rewriting syzygies ...\n[3][2][1]\n" +
                              line);
}

TEST(Omega, IsTheSameWhoeverListens) {
  const ring_in_force ring;
  const points::order_ideal X = walked(points_of_frame());
  told attentive;
  told inattentive(false);
  const presentation first = omega(X, attentive);
  const presentation second = omega(X, inattentive);
  EXPECT_EQ(first.no_of_pr(), 1);
  EXPECT_EQ(second.pr, first.pr);
  EXPECT_EQ(columns_of(second), columns_of(first));
  EXPECT_EQ(attentive.out + inattentive.out, "");
}

// Of a set that remembers: the walk first.
TEST(Omega, OfASetIsMadeBehindTheWalk) {
  const ring_in_force ring(101, 2);
  told_set set({{0, 0}, {1, 0}, {0, 1}});
  set.X.omega();
  EXPECT_EQ(set.reporter.out, line);
  EXPECT_TRUE(
      set.reporter.err.starts_with("calculating triangular sequence ...\n[3][2][1]\n"
                                   "calculating canonical forms ...\n[5][4][3][2][1]\n" +
                                   line))
      << set.reporter.err;
}

TEST(Omega, IsComputedOnce) {
  const ring_in_force ring;
  told_set set(points_of_frame());
  const points::relations_of_degree* const made = set.X.omega().A_d.data();
  set.reporter.forget();
  EXPECT_EQ(set.X.omega().A_d.data(), made);
  EXPECT_EQ(set.reporter.err + set.reporter.out, "");
}

TEST(Omega, IsTheSameEachTime) {
  const ring_in_force ring;
  const points::order_ideal X = walked(points_of_frame());
  const presentation first = omega(X, nobody());
  const presentation second = omega(X, nobody());
  EXPECT_EQ(first.pr, second.pr);
  EXPECT_EQ(first.pr_deg, second.pr_deg);
  EXPECT_EQ(columns_of(first), columns_of(second));
  EXPECT_FALSE(columns_of(second).empty());
}

TEST(Omega, LeavesTheRingAsItWas) {
  const ring_in_force ring;
  const arith::ring before = current_ring();
  computed(points_of_frame());
  EXPECT_EQ(current_ring(), before);
  EXPECT_EQ(dim, 3);
}

TEST(Omega, OfNoPointsIsEmptyAndMadeEachTime) {
  const ring_in_force ring;
  told_set set({});
  const presentation& w_R = set.X.omega();
  EXPECT_EQ(w_R.no_of_pr(), 0);
  EXPECT_EQ(w_R.A_d_cols, 0);
  EXPECT_TRUE(columns_of(w_R).empty());
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 0}));
  EXPECT_EQ(w_R.A_d_maxdeg, 0);
  EXPECT_EQ(w_R.A_d_coldeg, std::vector<int>{0});
  set.reporter.forget();
  set.X.omega();
  EXPECT_EQ(set.reporter.err, "calculating canonical forms ...\n\n" + line +
                                  "0 syzygies among 0 projections found.\n" + line +
                                  "rewriting syzygies ...\n\neliminating syzygies ...\n\n"
                                  "rewriting syzygies ...\n\n" +
                                  line);
}

TEST(Omega, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const presentation w_R = computed(points);
    for (const std::vector<polynomial>& column : columns_of(w_R)) {
      EXPECT_EQ(static_cast<int>(column.size()), w_R.no_of_pr());
      for (const polynomial& f : column) EXPECT_TRUE(sign(f) == 0 || f.term(0).dim() == proj);
    }
  });
}

}  // namespace
}  // namespace zep::tests
