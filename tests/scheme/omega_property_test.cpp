#include <gtest/gtest.h>

#include "scheme/min_Ix.h"
#include "scheme/omega.h"
#include "tests/scheme/plain_presentation.h"
#include "tests/scheme/point_sets.h"
#include "tests/scheme/special_sets.h"

namespace zep {
namespace {

scheme computed(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  omega(X);
  return X;
}

// With all exponents, that of X_0 last.
plain_form projective_form_of(const polynomial& f) {
  plain_form terms;
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    exponents e;
    for (int j = 0; j < proj; ++j) e.push_back(f.term(i).exp(j));
    if (f.coef(i) != 0) terms.emplace_back(e, f.coef(i).value());
  }
  return terms;
}

const polynomial& entry(const scheme& X, int generator, int relation) {
  return X.A_d[at(generator * X.A_d_cols + relation)];
}

plain_presentation presentation_of(const scheme& X) {
  plain_presentation result;
  for (const int position : X.pr) result.generators.push_back(exponents_of(X.O[at(position)]));
  for (int j = 0; j < X.A_d_cols; ++j) {
    plain_relation relation;
    for (int i = 0; i < no_of_pr(X); ++i) relation.push_back(projective_form_of(entry(X, i, j)));
    result.relations.push_back(relation);
  }
  return result;
}

plain_presentation presentation(const std::vector<coordinates>& points) {
  return presentation_of(computed(points));
}

faults faults_of(const std::vector<coordinates>& points, const plain_presentation& found) {
  return faults_of(plain_canonical_module(points), found);
}

faults faults_of_computed(const std::vector<coordinates>& points) {
  return faults_of(points, presentation(points));
}

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

// Calls check(points) for random sets of up to 40 points, and for such sets in a hyperplane.
template <class Check>
void for_each_random_set(int rounds, Check check) {
  std::mt19937 random(67);
  for (int round = 0; round < rounds; ++round) {
    for (const int p : {2, 3, 101, 251}) {
      for (int n = 2; n <= 5; ++n) {
        const ring_in_force ring(p, n, round % 2 == 0 ? term_order::deglex : term_order::degrevlex);
        const std::vector<coordinates> points = random_points(1 + below(random, 40), random);
        std::set<coordinates> flat;
        for (coordinates point : points) {
          point[at(round % 2 == 0 ? 0 : dim - 1)] = 1;
          flat.insert(point);
        }
        SCOPED_TRACE(std::to_string(points.size()) + " points of P^" + std::to_string(n) +
                     " over F_" + std::to_string(p));
        check(points);
        check(std::vector<coordinates>(flat.begin(), flat.end()));
        if (::testing::Test::HasFailure()) return;
      }
    }
  }
}

// The check of presentations itself. -------------------------------------------------------------

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

// The terms of X, Y, X_0 with these coefficients that are not 0.
plain_form linear_form(int x, int y, int x_0) {
  plain_form terms;
  if (x != 0) terms.push_back({{1, 0, 0}, x});
  if (y != 0) terms.push_back({{0, 1, 0}, y});
  if (x_0 != 0) terms.push_back({{0, 0, 1}, x_0});
  return terms;
}

plain_presentation presentation_of_triangle() {
  return {{{0, 1}, {1, 0}},
          {{linear_form(1, 0, 0), {}},
           {{}, linear_form(0, 1, 0)},
           {linear_form(0, 1, 100), linear_form(100, 0, 1)}}};
}

// Three points on a line and one off it; the projection to X^2 is one degree below that to Y.
const std::vector<coordinates> three_on_a_line = {{0, 0}, {1, 0}, {2, 0}, {0, 1}};

TEST(PlainPresentation, OfATriangleHasNoFaults) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(faults_of(triangle, presentation_of_triangle()), faults{});
}

TEST(PlainPresentation, OfOnePointHasNoFaults) {
  const ring_in_force ring(101, 2);
  const plain_presentation right = {{{0, 0}}, {{linear_form(1, 0, 98)}, {linear_form(2, 1, 91)}}};
  EXPECT_EQ(faults_of({{3, 4}}, right), faults{});
}

TEST(PlainPresentation, WithAWrongEntryIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[2][1][0].second = 99;
  EXPECT_EQ(faults_of(triangle, wrong), faults{not_a_relation});
}

TEST(PlainPresentation, WithAConstantEntryIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[0][0] = {{{0, 0, 0}, 1}};
  EXPECT_TRUE(faults_of(triangle, wrong).contains(constant_entry));
}

TEST(PlainPresentation, WithAnInhomogeneousRelationIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[0][0].push_back({{2, 0, 0}, 1});
  EXPECT_EQ(faults_of(triangle, wrong), faults{not_homogeneous});
  wrong = presentation_of_triangle();
  wrong.relations[0][1] = {{{0, 2, 0}, 1}};
  EXPECT_EQ(faults_of(triangle, wrong), faults{not_homogeneous});
}

TEST(PlainPresentation, WithARelationOfTheWrongLengthIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[0].pop_back();
  EXPECT_EQ(faults_of(triangle, wrong), faults{wrong_length});
}

TEST(PlainPresentation, WithAZeroRelationIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[1][1].clear();
  EXPECT_EQ(faults_of(triangle, wrong), faults{zero_relation});
}

TEST(PlainPresentation, WithAnotherBasisOfTheRelationsHasNoFaults) {
  const ring_in_force ring(101, 2);
  plain_presentation other = presentation_of_triangle();
  other.relations[0][1] = linear_form(0, 7, 0);
  other.relations[2][0] = linear_form(3, 5, 96);
  other.relations[2][1] = linear_form(96, 4, 5);
  EXPECT_EQ(faults_of(triangle, other), faults{});
}

TEST(PlainPresentation, WithADependentRelationInPlaceOfAnotherIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[2] = {linear_form(5, 0, 0), linear_form(0, 6, 0)};
  EXPECT_EQ(faults_of(triangle, wrong), (faults{superfluous, missing_relations}));
}

TEST(PlainPresentation, WithAMultipleInPlaceOfARelationIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[2] = {{{{0, 2, 0}, 1}, {{0, 1, 1}, 100}}, {{{1, 1, 0}, 100}, {{0, 1, 1}, 1}}};
  EXPECT_EQ(faults_of(triangle, wrong), (faults{wrong_relations, missing_relations}));
}

TEST(PlainPresentation, WithWrongGeneratorsIsNoted) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(faults_of(triangle, {{{1, 0}, {0, 1}}, {}}),
            (faults{generators_not_ascending, wrong_relations, missing_relations}));
  EXPECT_EQ(faults_of(triangle, {{{0, 1}}, {}}),
            (faults{wrong_generators, not_generating, wrong_relations, missing_relations}));
  EXPECT_TRUE(faults_of(triangle, {{{0, 0}, {0, 1}, {1, 0}}, {}}).contains(not_maximal));
  EXPECT_EQ(faults_of(triangle, {{{0, 1}, {1, 1}}, {}}), faults{not_in_O});
}

TEST(PlainPresentation, WithTheWrongChoiceOfMaximalMonomialsIsNoted) {
  const ring_in_force ring(101, 3);
  // Four points in general position in the plane X = 0 and one off it: the products with X are 0 in
  // R/(X_0), so that the projections to X and Z^2 generate while those to Y and Z^2 do not.
  const std::vector<coordinates> points = {{0, 0, 0}, {0, 1, 2}, {0, 3, 1}, {0, 4, 9}, {1, 0, 0}};
  const exponents x = {1, 0, 0};
  const exponents y = {0, 1, 0};
  const exponents z_2 = {0, 0, 2};
  EXPECT_FALSE(faults_of(points, {{x, z_2}, {}}).contains(not_generating));
  const faults found = faults_of(points, {{y, z_2}, {}});
  EXPECT_TRUE(found.contains(not_generating));
  EXPECT_FALSE(found.contains(wrong_generators) || found.contains(not_maximal));
}

TEST(PlainPresentation, WithRelationsInTheWrongOrderIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation(three_on_a_line);
  ASSERT_EQ(faults_of(three_on_a_line, wrong), faults{});
  std::reverse(wrong.relations.begin(), wrong.relations.end());
  EXPECT_EQ(faults_of(three_on_a_line, wrong), faults{relations_not_ascending});
}

TEST(PlainPresentation, WithoutAnyOneOfTheRelationsIsNoted) {
  for_each_random_set(1, [](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    const plain_presentation right = presentation(points);
    ASSERT_FALSE(right.relations.empty());
    const std::size_t step = right.relations.size() / 6 + 1;
    for (std::size_t c = 0; c < right.relations.size(); c += step) {
      plain_presentation wrong = right;
      wrong.relations.erase(wrong.relations.begin() + static_cast<std::ptrdiff_t>(c));
      ASSERT_EQ(faults_of(module, wrong), (faults{wrong_relations, missing_relations}));
    }
  });
}

TEST(PlainPresentation, WithAMultipleOfARelationAddedIsNoted) {
  for_each_random_set(1, [](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    plain_presentation wrong = presentation(points);
    const std::vector<int> degrees = plain_examination(module, wrong).degrees();
    const int degree = degrees.front() + 1;
    plain_relation multiple = wrong.relations.front();
    for (plain_form& form : multiple) form = times_variable(form, dim - 1);
    const auto behind = std::upper_bound(degrees.begin(), degrees.end(), degree);
    wrong.relations.insert(wrong.relations.begin() + (behind - degrees.begin()), multiple);
    const faults found = faults_of(module, wrong);
    ASSERT_TRUE(found.contains(wrong_relations));
    ASSERT_TRUE(found.contains(superfluous) || degree > module.largest_degree());
  });
}

TEST(PlainPresentation, WithAChangedCoefficientIsNotedUnlessItsTermIsARelation) {
  int noted = 0;
  for_each_random_set(1, [&](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    plain_presentation wrong = presentation(points);
    plain_relation& last = wrong.relations.back();
    const auto changed = std::find_if(last.begin(), last.end(),
                                      [](const plain_form& entry) { return !entry.empty(); });
    ASSERT_NE(changed, last.end());
    auto& [e, c] = changed->front();
    const exponents& generator = wrong.generators[at(static_cast<int>(changed - last.begin()))];
    const bool still = is_zero(module.multiple({{e, 1}}, generator));
    c = (c + 1) % Fp8::prime;
    ASSERT_EQ(faults_of(module, wrong).contains(not_a_relation), !still);
    noted += still ? 0 : 1;
  });
  EXPECT_GT(noted, 20);
}

TEST(PlainPresentation, NumbersOfTheResolutionAddUpToTheHilbertFunction) {
  for_each_random_set(1, [](const std::vector<coordinates>& points) {
    const plain_artinian artinian(points);
    const plain_betti betti(artinian);
    for (int j = 0; j <= dim + artinian.top_degree() + 1; ++j) {
      int sum = 0;
      for (int i = 0; i <= dim; ++i) {
        const auto members = static_cast<int>(artinian.members(j - i).size());
        sum += (i % 2 == 0 ? 1 : -1) * (betti(i, j) - plain_binomial(dim, i) * members);
      }
      ASSERT_EQ(sum, 0);
      if (j <= artinian.top_degree()) {
        ASSERT_EQ(betti(dim, dim + j), artinian.socle_dimension(j));
      }
    }
  });
}

// The presentations that are computed. ------------------------------------------------------------

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
  for_each_random_set(8, [&](const std::vector<coordinates>& points) {
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
    for (const int position : X.pr) degrees.push_back(X.O[at(position)].tot_deg());
    ASSERT_EQ(static_cast<int>(X.pr_deg.size()), X.sigma + 2);
    for (int d = 0; d < X.sigma + 2; ++d) ASSERT_EQ(X.pr_deg[at(d)], no_of(degrees, d));
    const std::vector<int> relations = degrees_of_relations(points, X);
    ASSERT_EQ(X.A_d_maxdeg, relations.back());
    ASSERT_EQ(static_cast<int>(X.A_d_coldeg.size()), X.A_d_maxdeg + 1);
    for (int e = 0; e <= X.A_d_maxdeg; ++e) ASSERT_EQ(X.A_d_coldeg[at(e)], no_of(relations, e));
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
      const int relations = dim + D - j <= X.A_d_maxdeg ? X.A_d_coldeg[at(dim + D - j)] : 0;
      const int last = relations - (j >= dim ? X.pr_deg[at(j - dim)] : 0);
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
}  // namespace zep
