// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/presentation.h"

#include <gtest/gtest.h>

#include "base/paranoid.h"
#include "tests/arith/power_product.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

polynomial x(int i) { return polynomial(projective_variable(i)); }

// That of three points off a line, generators to Y and X, without the relations in two of them.
presentation of_two_generators() {
  const polynomial zero(0);
  return {{1, 2}, {variable(1), variable(0)}, 0, {x(0), zero, zero, x(1)}, {0, 2}};
}

TEST(Presentation, CountsGeneratorsAndRelationsByDegree) {
  const ring_in_force ring(101, 2);
  const presentation w_R = of_two_generators();
  EXPECT_EQ(w_R.no_of_pr(), 2);
  EXPECT_EQ(w_R.pr, (std::vector<int>{1, 2}));
  EXPECT_EQ(w_R.pr_monom, (std::vector<monom>{variable(1), variable(0)}));
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 2}));
  EXPECT_EQ(w_R.sigma, 0);
  EXPECT_EQ(w_R.A_d_cols, 2);
  EXPECT_EQ(w_R.A_d_maxdeg, 1);
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 2}));
}

TEST(Presentation, HasItsEntriesGeneratorByGenerator) {
  const ring_in_force ring(101, 2);
  const presentation w_R = of_two_generators();
  EXPECT_EQ(w_R.entry(0, 0), x(0));
  EXPECT_EQ(w_R.entry(0, 1), polynomial(0));
  EXPECT_EQ(w_R.entry(1, 0), polynomial(0));
  EXPECT_EQ(w_R.entry(1, 1), x(1));
  EXPECT_EQ(w_R.column(1), (std::vector<polynomial>{polynomial(0), x(1)}));
}

TEST(Presentation, OfSeveralDegreesHasAPlaceForEach) {
  const ring_in_force ring(101, 2);
  const presentation w_R({0, 3}, {monom(), monomial({2, 0})}, 1, {x(0), x(1)}, {0, 0, 0, 1});
  EXPECT_EQ(w_R.pr_deg, (std::vector<int>{1, 0, 1}));
  EXPECT_EQ(w_R.A_d_cols, 1);
  EXPECT_EQ(w_R.A_d_maxdeg, 3);
}

TEST(Presentation, CountsRelationsThroughAllDegrees) {
  const ring_in_force ring(101, 2);
  const polynomial zero(0);
  const polynomial square(projective({0, 0, 2}));
  const presentation w_R({1, 2}, {variable(1), variable(0)}, 0,
                         {x(0), zero, square, zero, x(1), zero}, {0, 2, 1});
  EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 2, 1}));
  EXPECT_EQ(w_R.column(0), (std::vector<polynomial>{x(0), zero}));
  EXPECT_EQ(w_R.column(1), (std::vector<polynomial>{zero, x(1)}));
  EXPECT_EQ(w_R.column(2), (std::vector<polynomial>{square, zero}));
}

TEST(Presentation, KeepsNoZeros) {
  const ring_in_force ring(101, 2);
  const presentation w_R = of_two_generators();
  ASSERT_EQ(w_R.A_d.size(), 2U);
  EXPECT_EQ(w_R.A_d[1].monomials.size(), 2U);
  for (const points::relation& r : w_R.A_d[1].relations) EXPECT_EQ(r.coef, row{Fp8(1)});
}

TEST(Presentation, IsTheSameByItsRelationsAndByTheirEntries) {
  const ring_in_force ring(101, 2);
  const presentation by_entries = of_two_generators();
  const presentation by_relations({1, 2}, {variable(1), variable(0)}, 0, by_entries.A_d);
  EXPECT_EQ(by_relations.A_d_coldeg, by_entries.A_d_coldeg);
  EXPECT_EQ(by_relations.A_d_maxdeg, 1);
  ASSERT_EQ(by_relations.A_d_cols, 2);
  for (int j = 0; j < 2; ++j) EXPECT_EQ(by_relations.column(j), by_entries.column(j));
}

TEST(Presentation, OfNothingHasNoGenerators) {
  const presentation nothing;
  EXPECT_EQ(nothing.no_of_pr(), 0);
  EXPECT_TRUE(nothing.pr.empty() && nothing.pr_monom.empty() && nothing.pr_deg.empty());
  EXPECT_EQ(nothing.sigma, 0);
  EXPECT_EQ(nothing.A_d_cols, 0);
  EXPECT_TRUE(nothing.A_d.empty() && nothing.A_d_coldeg.empty());
  EXPECT_EQ(nothing.A_d_maxdeg, 0);
}

TEST(PresentationDeathTest, CountsThatDoNotFitAbortTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "only the paranoid build looks";
  const ring_in_force ring(101, 2);
  const monom X = variable(0);
  const monom Y = variable(1);
  EXPECT_DEATH(presentation({1, 2}, {Y}, 0, {x(0), x(1)}, {0, 1}),
               "broken: each generator has a monomial");
  EXPECT_DEATH(presentation({2, 1}, {X, Y}, 0, {x(0), x(1)}, {0, 1}),
               "broken: the generators ascend");
  EXPECT_DEATH(presentation({1, 2}, {Y, X}, 0, {x(0)}, {0, 1}),
               "broken: there is an entry for each generator and relation");
  EXPECT_DEATH(presentation({1, 2}, {Y, X}, 0, {x(0), x(1)}, {0, 1, 1}),
               "broken: there is an entry for each generator and relation");
  EXPECT_DEATH(presentation({1}, {X}, 0, {x(0), x(1)}, {0, 1}),
               "broken: there is an entry for each generator and relation");
}

TEST(PresentationDeathTest, RelationsThatDoNotFitAbortTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "only the paranoid build looks";
  const ring_in_force ring(101, 2);
  const std::vector<points::module_monomial> monomials = {{projective({1}), 0},
                                                          {projective({0, 1}), 0}};
  const auto with = [](std::vector<points::module_monomial> of_relations, points::relation r) {
    presentation({0}, {monom()}, -1, {{std::move(of_relations), {std::move(r)}}});
  };
  with(monomials, {{0, 1}, {Fp8(1), Fp8(2)}});
  constexpr const char* broken = "broken: the relations are among the generators, in order";
  EXPECT_DEATH(with({{projective({1}), 1}}, {{0}, {Fp8(1)}}), broken);
  EXPECT_DEATH(with({monomials[1], monomials[0]}, {{0}, {Fp8(1)}}), broken);
  EXPECT_DEATH(with(monomials, {{1, 0}, {Fp8(1), Fp8(2)}}), broken);
  EXPECT_DEATH(with(monomials, {{2}, {Fp8(1)}}), broken);
  EXPECT_DEATH(with(monomials, {{0, 1}, {Fp8(1)}}), broken);
}

}  // namespace
}  // namespace zep::tests
