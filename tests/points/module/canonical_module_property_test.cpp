#include <gtest/gtest.h>

#include "points/ideal/minimal_generators.h"
#include "tests/points/computed_presentation.h"

namespace zep::tests {
namespace {

// What the degrees of a scheme's relations are by its columns.
std::vector<int> degrees_of_relations(const std::vector<coordinates>& points, const scheme& X) {
  return plain_examination(plain_canonical_module(points), presentation_of(X)).degrees();
}

int no_of(const std::vector<int>& degrees, int d) {
  return static_cast<int>(std::count(degrees.begin(), degrees.end(), d));
}

// Degrees of the minimal generators of the homogeneous vanishing ideal.
std::vector<int> degrees_of_minimal_generators(scheme& X) {
  const silence quiet;
  min_Ix(X);
  std::vector<int> degrees;
  for (const polynomial& f : X.min_Ix->gen) {
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
  void add(const plain_canonical_module& module, const scheme& X) {
    const auto is_there = [](int number) { return number > 0; };
    some_eliminated += no_of_maximal_members(module) > no_of_pr(X) ? 1 : 0;
    all_kept += no_of_pr(X) > 1 && no_of_maximal_members(module) == no_of_pr(X) ? 1 : 0;
    generators_of_several_degrees +=
        std::count_if(X.pr_deg.begin(), X.pr_deg.end(), is_there) > 1 ? 1 : 0;
    relations_of_several_degrees +=
        std::count_if(X.A_d_coldeg.begin(), X.A_d_coldeg.end(), is_there) > 1 ? 1 : 0;
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
    const scheme X = computed(points);
    ASSERT_EQ(faults_of(module, presentation_of(X)), faults{});
    seen.add(module, X);
  });
  EXPECT_GT(seen.least(), 50);
}

TEST(OmegaProperty, PresentationOfRandomPointsIsMinimal) {
  kinds seen;
  for_each_random_or_flat_set(8, [&](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    const scheme X = computed(points);
    ASSERT_EQ(faults_of(module, presentation_of(X)), faults{});
    seen.add(module, X);
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
        ASSERT_EQ(no_of_pr(computed(points)), 1);
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
      ASSERT_EQ(no_of_pr(computed(points)), 1);
    }
  }
}

TEST(OmegaProperty, EntriesAreProjectivePolynomials) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = computed(points);
    ASSERT_EQ(static_cast<int>(X.A_d.size()), no_of_pr(X) * X.A_d_cols);
    for (const polynomial& f : X.A_d) {
      for (int i = 0; i < f.no_of_monoms(); ++i) {
        if (sign(f) == 0) continue;
        ASSERT_NE(f.coef(i), 0);
        ASSERT_EQ(f.term(i).dim(), proj);
        for (int j = 0; j < proj; ++j) ASSERT_GE(f.term(i).exp(j), 0);
        ASSERT_TRUE(i == 0 || monom_ordering_lt(f.term(i), f.term(i - 1)));
      }
    }
  });
}

TEST(OmegaProperty, GeneratorsAndRelationsAreCountedByDegree) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = computed(points);
    std::vector<int> degrees;
    for (const int position : X.pr) degrees.push_back(X.O[position].tot_deg());
    ASSERT_EQ(static_cast<int>(X.pr_deg.size()), X.sigma + 2);
    for (int d = 0; d < X.sigma + 2; ++d) ASSERT_EQ(X.pr_deg[d], no_of(degrees, d));
    const std::vector<int> relations = degrees_of_relations(points, X);
    ASSERT_EQ(X.A_d_maxdeg, relations.back());
    ASSERT_EQ(static_cast<int>(X.A_d_coldeg.size()), X.A_d_maxdeg + 1);
    for (int e = 0; e <= X.A_d_maxdeg; ++e) ASSERT_EQ(X.A_d_coldeg[e], no_of(relations, e));
  });
}

TEST(OmegaProperty, RelationsInThePlaneAreDualToTheMinimalGeneratorsOfTheIdeal) {
  for_each_set([](const std::vector<coordinates>& points) {
    if (dim != 2) return;
    scheme X = computed(points);
    std::vector<int> degrees = degrees_of_minimal_generators(X);
    for (int& d : degrees) d = X.sigma + 3 - d;
    std::sort(degrees.begin(), degrees.end());
    ASSERT_EQ(degrees_of_relations(points, X), degrees);
    // There is one generator less in the plane.
    ASSERT_EQ(no_of_pr(X), X.A_d_cols - 1);
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
bool is_determined(const scheme& X, int j) {
  for (int i = 2; i <= dim - 2; ++i) {
    if (i + X.alpha - 1 <= j && j <= i + X.sigma + 1) return false;
  }
  return true;
}

TEST(OmegaProperty, NumbersFitTheHilbertFunctionAndTheMinimalGeneratorsOfTheIdeal) {
  int determined = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    if (dim == 2) return;
    scheme X = computed(points);
    const plain_artinian artinian(points);
    const std::vector<int> generators = degrees_of_minimal_generators(X);
    const int D = X.sigma + 1;
    for (int j = 0; j <= dim + D; ++j) {
      if (!is_determined(X, j)) continue;
      const int relations = dim + D - j <= X.A_d_maxdeg ? X.A_d_coldeg[dim + D - j] : 0;
      const int last = relations - (j >= dim ? X.pr_deg[j - dim] : 0);
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
    scheme X = computed(points);
    ASSERT_EQ(no_of_pr(X) == 1, plain_artinian(points).type() == 1);
    if (no_of_pr(X) > 1) return;
    ++gorenstein;
    ASSERT_EQ(X.pr, std::vector<int>{X.s - 1});
    for (const polynomial& f : X.A_d) ASSERT_TRUE(vanishes(f, points));
    ASSERT_EQ(degrees_of_relations(points, X), degrees_of_minimal_generators(X));
  });
  EXPECT_GT(gorenstein, 100);
}

TEST(OmegaProperty, FivePointsInGeneralPositionInSpaceHaveOneGenerator) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 3, order);
    const scheme X = computed(points_of_frame());
    EXPECT_EQ(X.pr, std::vector<int>{4});
    EXPECT_EQ(X.pr_deg, (std::vector<int>{0, 0, 1}));
    EXPECT_EQ(X.A_d_coldeg, (std::vector<int>{0, 0, 5}));
    EXPECT_EQ(faults_of_computed(points_of_frame()), faults{});
  }
}

}  // namespace
}  // namespace zep::tests
