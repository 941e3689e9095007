// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/generator_elimination.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

#include "points/module/superfluous_syzygies.h"
#include "reference/termwise_elimination.h"
#include "tests/points/module_of_points.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/plain_projections.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

struct column_term {
  monom m;
  int candidate = 0;
  Fp8 c;
};

std::vector<column_term> terms_of(const points::relations_of_degree& R, int j) {
  std::vector<column_term> terms;
  R.for_each_term(j, [&](const points::module_monomial& t, Fp8 c) {
    terms.push_back({t.m, t.component, c});
  });
  return terms;
}

struct eliminated_module {
  explicit eliminated_module(const std::vector<coordinates>& points) : m(points), generators(m.W) {
    for (const syzygies_of_degree& S : rewritten_syzygies(m.W, m.leading())) {
      const points::relations_of_degree R = generators.eliminate(S);
      for (int j = 0; j < R.count(); ++j) {
        columns.push_back(terms_of(R, j));
        degrees.push_back(S.degree);
      }
    }
  }

  module_of_points m;
  generator_elimination generators;
  std::vector<std::vector<column_term>> columns;
  std::vector<int> degrees;
};

int full_degree(const monom& m) { return m.tot_deg() + m.exp(proj - 1); }

TEST(GeneratorElimination, OfFiveGeneralPointsLeavesOneGenerator) {
  const ring_in_force ring;
  const eliminated_module e({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {3, 7, 11}});
  EXPECT_TRUE(e.generators.is_eliminated(0));
  EXPECT_TRUE(e.generators.is_eliminated(1));
  EXPECT_FALSE(e.generators.is_eliminated(2));
  EXPECT_EQ(e.columns.size(), 7U);
}

TEST(GeneratorElimination, OfOnePointLeavesItsCoordinates) {
  const ring_in_force ring(101, 2);
  const eliminated_module e({{5, 7}});
  ASSERT_EQ(e.columns.size(), 2U);
  const std::vector<column_term>& first = e.columns[0];
  ASSERT_EQ(first.size(), 2U);
  EXPECT_EQ(exponents_of(first[0].m), (exponents{1, 0}));
  EXPECT_EQ(first[1].m.exp(2), 1);
  EXPECT_EQ(first[1].c, -Fp8(5));
}

TEST(GeneratorElimination, LeavesTheRingAsItWas) {
  const ring_in_force ring;
  const arith::ring before = current_ring();
  const eliminated_module e({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {3, 7, 11}});
  EXPECT_EQ(current_ring(), before);
  EXPECT_EQ(dim, 3);
  EXPECT_EQ(proj, 4);
}

TEST(GeneratorElimination, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const eliminated_module e(points);
    EXPECT_LE(e.columns.size(), e.m.leading().size());
  });
}

TEST(GeneratorEliminationProperty, SyzygiesAreRewrittenByFallingDegrees) {
  for_each_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    int before = m.W.top_degree();
    std::size_t count = 0;
    for (const syzygies_of_degree& S : rewritten_syzygies(m.W, m.leading())) {
      ASSERT_LT(S.degree, before);
      before = S.degree;
      count += S.leading.size();
      ASSERT_EQ(S.forms.rows(), static_cast<int>(S.leading.size()));
      const int first = m.W.begin(S.degree);
      ASSERT_EQ(S.forms.cols(), m.W.no_of_members() - first);
      for (int r = 0; r < S.forms.rows(); ++r) {
        ASSERT_EQ(m.W.degree(S.leading[r]), S.degree);
        const row form = canonical_form(m.W, S.leading[r], m.W.no_of_members());
        ASSERT_EQ(elements_of(S.forms[r]), row(form.begin() + first, form.end()));
      }
    }
    ASSERT_EQ(count, m.leading().size());
  });
}

void expect_terms(const std::vector<column_term>& found, const polynomial_row& expected) {
  ASSERT_EQ(found.size(), expected.terms().size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    const polynomial_row::term& t = expected.terms()[i];
    ASSERT_EQ(found[i].m, t.m);
    ASSERT_EQ(found[i].m.exp(proj - 1), t.m.exp(proj - 1));
    ASSERT_EQ(found[i].candidate, t.column);
    ASSERT_EQ(found[i].c, t.c);
  }
}

void expect_the_same_term_by_term(const std::vector<coordinates>& points) {
  const eliminated_module e(points);
  termwise_elimination plain(e.m.W);
  std::size_t next = 0;
  for (const syzygy_matrix& S : syzygy_matrices(e.m.W, e.m.leading())) {
    for (const polynomial_row& column : plain.eliminate(S)) {
      ASSERT_LT(next, e.columns.size());
      ASSERT_EQ(e.degrees[next], S.degree);
      ASSERT_NO_FATAL_FAILURE(expect_terms(e.columns[next], column));
      ++next;
    }
  }
  ASSERT_EQ(next, e.columns.size());
  for (int a = 0; a < e.m.W.no_of_candidates(); ++a) {
    ASSERT_EQ(e.generators.is_eliminated(a), plain.is_eliminated(a));
  }
}

TEST(GeneratorEliminationProperty, GivesWhatTermsGiveOneByOne) {
  for_each_set([](const std::vector<coordinates>& points) {
    ASSERT_NO_FATAL_FAILURE(expect_the_same_term_by_term(points));
  });
}

// More rows than are worked on at once, and candidates that are eliminated in products of matrices.
TEST(GeneratorEliminationProperty, GivesWhatTermsGiveOneByOneOfManyPointsToo) {
  std::mt19937 random(3);
  for (const auto& [n, s] : {std::pair{5, 240}, std::pair{7, 150}, std::pair{3, 130}}) {
    const ring_in_force ring(101, n);
    const std::vector<coordinates> points = random_points(s, random);
    ASSERT_NO_FATAL_FAILURE(expect_the_same_term_by_term(points));
  }
}

TEST(GeneratorEliminationProperty, AsManyGeneratorsStayAsTheSocleHas) {
  for_each_set([](const std::vector<coordinates>& points) {
    const eliminated_module e(points);
    const plain_artinian plain(points);
    for (int d = 0; d <= plain.top_degree(); ++d) {
      int stay = 0;
      for (int a = 0; a < e.m.W.no_of_candidates(); ++a) {
        if (e.m.W.degree_of_member(e.m.W.candidate(a)) != d) continue;
        if (!e.generators.is_eliminated(a)) ++stay;
      }
      ASSERT_EQ(stay, plain.socle_dimension(d)) << d;
    }
  });
}

TEST(GeneratorEliminationProperty, ColumnsAreHomogeneousRelationsOfTheGeneratorsWithoutConstants) {
  int entries = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const eliminated_module e(points);
    const std::vector<weights> projections =
        plain_projections(plain_facts(points).order_ideal, points);
    for (std::size_t j = 0; j < e.columns.size(); ++j) {
      weights sum(points.size(), 0);
      for (const auto& [m, a, c] : e.columns[j]) {
        const int position = e.m.W.candidate(a);
        ++entries;
        ASSERT_FALSE(e.generators.is_eliminated(a));
        ASSERT_EQ(m.dim(), proj);
        ASSERT_GT(full_degree(m), 0);
        ASSERT_EQ(full_degree(m), e.m.W.degree_of_member(position) - e.degrees[j]);
        const weights product = times(projections[position], exponents_of(m), points);
        for (std::size_t i = 0; i < sum.size(); ++i) {
          sum[i] = (sum[i] + c.value() * product[i]) % Fp8::prime;
        }
      }
      ASSERT_EQ(sum, weights(points.size(), 0));
    }
  });
  EXPECT_GT(entries, 10000);
}

}  // namespace
}  // namespace zep::tests
