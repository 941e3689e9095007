// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"
#include "tests/points/computed_presentation.h"

namespace zep::tests {
namespace {

// What the degrees of the relations are by their columns.
std::vector<int> degrees_of_relations(const std::vector<coordinates>& points,
                                      const presentation& w_R) {
  return plain_examination(plain_canonical_module(points), presentation_of(w_R)).degrees();
}

int no_of(const std::vector<int>& degrees, int d) {
  return static_cast<int>(std::count(degrees.begin(), degrees.end(), d));
}

// Degrees of the minimal generators of the homogeneous vanishing ideal.
std::vector<int> degrees_of_minimal_generators(const points::order_ideal& X) {
  std::vector<int> degrees;
  for (const polynomial& f : min_Ix(X, Can_Lf(X)).gen) {
    degrees.push_back(f.term(0).tot_deg() + f.term(0).exp(proj - 1));
  }
  return degrees;
}

int no_of_maximal_members(const plain_canonical_module& module) {
  const std::vector<exponents>& O = module.order_ideal();
  const auto is_maximal = [&](const exponents& t) {
    for (int v = 0; v < dim; ++v) {
      if (std::find(O.begin(), O.end(), times_variable(t, v)) != O.end()) return false;
    }
    return true;
  };
  return static_cast<int>(std::count_if(O.begin(), O.end(), is_maximal));
}

// Counts kinds of sets, so that a test can tell that it has seen them.
struct kinds {
  void add(const plain_canonical_module& module, const presentation& w_R) {
    const auto is_there = [](int number) { return number > 0; };
    some_eliminated += no_of_maximal_members(module) > w_R.no_of_pr() ? 1 : 0;
    all_kept += w_R.no_of_pr() > 1 && no_of_maximal_members(module) == w_R.no_of_pr() ? 1 : 0;
    generators_of_several_degrees +=
        std::count_if(w_R.pr_deg.begin(), w_R.pr_deg.end(), is_there) > 1 ? 1 : 0;
    relations_of_several_degrees +=
        std::count_if(w_R.A_d_coldeg.begin(), w_R.A_d_coldeg.end(), is_there) > 1 ? 1 : 0;
    in_a_hyperplane += module.initial_degree() == 1 ? 1 : 0;
  }

  int least() const {
    return std::min({some_eliminated, all_kept, generators_of_several_degrees,
                     relations_of_several_degrees, in_a_hyperplane});
  }

  int some_eliminated = 0;
  int all_kept = 0;
  int generators_of_several_degrees = 0;
  int relations_of_several_degrees = 0;
  int in_a_hyperplane = 0;
};

TEST(OmegaProperty, PresentationIsMinimal) {
  kinds seen;
  for_each_set([&](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    const presentation w_R = computed(points);
    ASSERT_EQ(faults_of(module, presentation_of(w_R)), faults{});
    seen.add(module, w_R);
  });
  EXPECT_GT(seen.least(), 50);
}

TEST(OmegaProperty, PresentationOfRandomPointsIsMinimal) {
  kinds seen;
  for_each_random_or_flat_set(8, [&](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    const presentation w_R = computed(points);
    ASSERT_EQ(faults_of(module, presentation_of(w_R)), faults{});
    seen.add(module, w_R);
  });
  EXPECT_GT(seen.least(), 20);
}

// As many points on each of two lines that do not meet, if dim > 2.
std::vector<coordinates> points_on_two_lines(int each) {
  std::vector<coordinates> points = points_on_curve(1, each);
  for (coordinates point : points_on_curve(1, each)) {
    std::swap(point[0], point[1]);
    point.back() += dim > 2 ? 1 : 30;
    points.push_back(point);
  }
  return points;
}

TEST(OmegaProperty, PresentationOfLargerSpecialSetsIsMinimal) {
  for (int n = 2; n <= 4; ++n) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(101, n, order);
      const std::vector<named_points> sets = {
          {"a conic", points_on_curve(2, 14)},       {"a normal curve", points_on_curve(n, 25)},
          {"a square", points_of_grid(2, 8 - n)},    {"a cube", points_of_grid(std::min(n, 3), 3)},
          {"two lines", points_on_two_lines(9 - n)},
      };
      for (const named_points& set : sets) {
        SCOPED_TRACE(set.name + " of P^" + std::to_string(n));
        ASSERT_EQ(faults_of_computed(set.points), faults{});
      }
    }
  }
}

TEST(OmegaProperty, PresentationOfTwoPointsIsMinimal) {
  std::mt19937 random(71);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 5; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        const std::vector<coordinates> points = random_points(2, random);
        ASSERT_EQ(faults_of_computed(points), faults{});
        ASSERT_EQ(computed(points).no_of_pr(), 1);
      }
    }
  }
}

TEST(OmegaProperty, PresentationOfCollinearPointsIsMinimal) {
  for (const int p : {101, 251}) {
    for (int n = 2; n <= 4; ++n) {
      const ring_in_force ring(p, n);
      const std::vector<coordinates> points = points_on_curve(1, 14 - 2 * n);
      ASSERT_EQ(faults_of_computed(points), faults{});
      ASSERT_EQ(computed(points).no_of_pr(), 1);
    }
  }
}

void expect_projective(const polynomial& f) {
  if (sign(f) == 0) return;
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    ASSERT_NE(f.coef(i), 0);
    ASSERT_EQ(f.term(i).dim(), proj);
    for (int j = 0; j < proj; ++j) ASSERT_GE(f.term(i).exp(j), 0);
    ASSERT_TRUE(i == 0 || monom_ordering_lt(f.term(i), f.term(i - 1)));
  }
}

TEST(OmegaProperty, EntriesAreProjectivePolynomials) {
  for_each_set([](const std::vector<coordinates>& points) {
    const presentation w_R = computed(points);
    for (const std::vector<polynomial>& column : columns_of(w_R)) {
      ASSERT_EQ(static_cast<int>(column.size()), w_R.no_of_pr());
      for (const polynomial& f : column) ASSERT_NO_FATAL_FAILURE(expect_projective(f));
    }
  });
}

TEST(OmegaProperty, GeneratorsAndRelationsAreCountedByDegree) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const presentation w_R = omega(X, nobody());
    std::vector<monom> monomials;
    std::vector<int> degrees;
    for (const int position : w_R.pr) {
      monomials.push_back(X.O[position]);
      degrees.push_back(X.O[position].tot_deg());
    }
    ASSERT_EQ(w_R.pr_monom, monomials);
    ASSERT_EQ(w_R.sigma, X.H.sigma);
    ASSERT_EQ(static_cast<int>(w_R.pr_deg.size()), X.H.sigma + 2);
    for (int d = 0; d < X.H.sigma + 2; ++d) ASSERT_EQ(w_R.pr_deg[d], no_of(degrees, d));
    const std::vector<int> relations = degrees_of_relations(points, w_R);
    ASSERT_EQ(w_R.A_d_cols, static_cast<int>(relations.size()));
    ASSERT_EQ(w_R.A_d_maxdeg, relations.back());
    ASSERT_EQ(static_cast<int>(w_R.A_d_coldeg.size()), w_R.A_d_maxdeg + 1);
    for (int e = 0; e <= w_R.A_d_maxdeg; ++e) ASSERT_EQ(w_R.A_d_coldeg[e], no_of(relations, e));
  });
}

TEST(OmegaProperty, RelationsInThePlaneAreDualToTheMinimalGeneratorsOfTheIdeal) {
  for_each_set([](const std::vector<coordinates>& points) {
    if (dim != 2) return;
    const points::order_ideal X = walked(points);
    const presentation w_R = omega(X, nobody());
    std::vector<int> degrees = degrees_of_minimal_generators(X);
    for (int& d : degrees) d = X.H.sigma + 3 - d;
    std::sort(degrees.begin(), degrees.end());
    ASSERT_EQ(degrees_of_relations(points, w_R), degrees);
    // There is one generator less in the plane.
    ASSERT_EQ(w_R.no_of_pr(), w_R.A_d_cols - 1);
  });
}

// The alternating sum of the Betti numbers of degree j, as the Hilbert function wants it.
int alternating_sum(const plain_artinian& artinian, int j) {
  int sum = 0;
  for (int i = 0; i <= dim; ++i) {
    sum += (i % 2 == 0 ? 1 : -1) * plain_binomial(dim, i) *
           static_cast<int>(artinian.members(j - i).size());
  }
  return sum;
}

// True when only the first two and the last two modules of the resolution can have generators of
// degree j, as those of the i-th have degrees i + alpha - 1 .. i + D.
bool is_determined(const hilbert_numbers& H, int j) {
  for (int i = 2; i <= dim - 2; ++i) {
    if (i + H.alpha - 1 <= j && j <= i + H.sigma + 1) return false;
  }
  return true;
}

TEST(OmegaProperty, NumbersFitTheHilbertFunctionAndTheMinimalGeneratorsOfTheIdeal) {
  int determined = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    if (dim == 2) return;
    const points::order_ideal X = walked(points);
    const presentation w_R = omega(X, nobody());
    const plain_artinian artinian(points);
    const std::vector<int> generators = degrees_of_minimal_generators(X);
    const int D = X.H.sigma + 1;
    for (int j = 0; j <= dim + D; ++j) {
      if (!is_determined(X.H, j)) continue;
      const int relations = dim + D - j <= w_R.A_d_maxdeg ? w_R.A_d_coldeg[dim + D - j] : 0;
      const int last = relations - (j >= dim ? w_R.pr_deg[j - dim] : 0);
      ASSERT_EQ((j == 0 ? 1 : 0) - no_of(generators, j) + (dim % 2 == 0 ? -last : last),
                alternating_sum(artinian, j))
          << "degree " << j;
      ++determined;
    }
  });
  EXPECT_GT(determined, 1000);
}

// True when the polynomial, homogenised with X_0, vanishes at all points.
bool vanishes(const polynomial& f, const std::vector<coordinates>& points) {
  return std::all_of(points.begin(), points.end(),
                     [&](const coordinates& point) { return value_at(f, point) == 0; });
}

TEST(OmegaProperty, GorensteinSetsHaveOneGeneratorAndTheIdealForRelations) {
  int gorenstein = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const presentation w_R = omega(X, nobody());
    ASSERT_EQ(w_R.no_of_pr() == 1, plain_artinian(points).type() == 1);
    if (w_R.no_of_pr() > 1) return;
    ++gorenstein;
    ASSERT_EQ(w_R.pr, std::vector<int>{X.s() - 1});
    for (int j = 0; j < w_R.A_d_cols; ++j) ASSERT_TRUE(vanishes(w_R.entry(0, j), points));
    ASSERT_EQ(degrees_of_relations(points, w_R), degrees_of_minimal_generators(X));
  });
  EXPECT_GT(gorenstein, 100);
}

TEST(OmegaProperty, FivePointsInGeneralPositionInSpaceHaveOneGenerator) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 3, order);
    const presentation w_R = computed(points_of_frame());
    EXPECT_EQ(w_R.pr, std::vector<int>{4});
    EXPECT_EQ(w_R.pr_deg, (std::vector<int>{0, 0, 1}));
    EXPECT_EQ(w_R.A_d_coldeg, (std::vector<int>{0, 0, 5}));
    EXPECT_EQ(faults_of_computed(points_of_frame()), faults{});
  }
}

}  // namespace
}  // namespace zep::tests
