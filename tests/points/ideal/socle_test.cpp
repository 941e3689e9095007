// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/socle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/plain_socle.h"
#include "tests/points/point_sets.h"
#include "tests/points/printed.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

ideal computed(const std::vector<coordinates>& points) {
  const points::order_ideal X = walked(points);
  return socle(X, Can_Lf(X));
}

std::vector<plain_form> forms(const ideal& generators) {
  std::vector<plain_form> result;
  for (const polynomial& f : generators.gen) result.push_back(plain_form_of(f));
  return result;
}

using texts = std::vector<std::string>;

int coefficient(const plain_form& f, const exponents& e) {
  for (const auto& [monomial, c] : f) {
    if (monomial == e) return c;
  }
  return 0;
}

TEST(Socle, OfOnePointIsGeneratedByOne) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(printed(computed({{5, 6}})), texts{"1"});
}

TEST(Socle, OfTheTriangleIsGeneratedByTheVariables) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(printed(computed({{0, 0}, {1, 0}, {0, 1}})), (texts{"Y", "X"}));
}

// Three points on a line and one off it: the leading forms are Y^2, XY and X^3.
TEST(Socle, HasGeneratorsBelowTheTopDegree) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(printed(computed({{0, 0}, {1, 0}, {2, 0}, {0, 1}})), (texts{"Y", "X2"}));
}

TEST(Socle, CombinesMonomialsWhenNoneIsAnnihilatedAlone) {
  const ring_in_force ring(101, 2);
  // The line is X = Y, so that Y^2 and XY are the same and X - Y is annihilated.
  EXPECT_EQ(printed(computed({{0, 0}, {1, 1}, {2, 2}, {0, 1}})), (texts{"-X+Y", "Y2"}));
}

TEST(Socle, OfAGorensteinSetIsTheMonomialOfTopDegree) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(printed(computed({{0, 0}, {1, 0}, {0, 1}, {1, 1}})), texts{"XY"});
}

TEST(Socle, OfNoPointsIsZero) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(computed({}).no_of_gens(), 0);
}

TEST(Socle, OfMeaninglessPointsAscendsAllTheSame) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const ideal generators = computed(points);
    EXPECT_LE(generators.no_of_gens(), std::ssize(points));
    EXPECT_TRUE(std::is_sorted(generators.gen.begin(), generators.gen.end()));
  });
}

TEST(SocleProperty, ElementsAreHomogeneousAndAnnihilatedByAllVariables) {
  int below_the_top = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const plain_artinian plain(points);
    for (const plain_form& f : forms(computed(points))) {
      const int d = degree_of(f);
      for (const auto& term : f) ASSERT_EQ(degree_of(term.first), d);
      ASSERT_FALSE(is_zero(plain.residue(f, d)));
      ASSERT_TRUE(is_zero(plain.residue_of_products(f, d)));
      below_the_top += d < plain.top_degree() ? 1 : 0;
    }
  });
  EXPECT_GT(below_the_top, 100);
}

TEST(SocleProperty, ElementsAreABasisInEveryDegree) {
  for_each_set([](const std::vector<coordinates>& points) {
    const plain_artinian plain(points);
    const std::vector<plain_form> found = forms(computed(points));
    for (int d = 0; d <= plain.top_degree() + 1; ++d) {
      plain_echelon span;
      for (const plain_form& f : found) {
        if (degree_of(f) != d) continue;
        ASSERT_TRUE(span.add(plain.residue(f, d)));
      }
      ASSERT_EQ(span.rank(), plain.socle_dimension(d)) << "degree " << d;
    }
  });
}

TEST(SocleProperty, MonomialsOfTopDegreeBelongToIt) {
  for_each_set([](const std::vector<coordinates>& points) {
    const plain_artinian plain(points);
    const std::vector<plain_form> found = forms(computed(points));
    for (const exponents& e : plain.members(plain.top_degree())) {
      ASSERT_EQ(std::count(found.begin(), found.end(), plain_form{{e, 1}}), 1);
    }
  });
}

TEST(SocleProperty, TypeIsTheDimensionOfTheSocle) {
  for_each_set([](const std::vector<coordinates>& points) {
    ASSERT_EQ(computed(points).no_of_gens(), plain_artinian(points).type());
  });
}

// Which elements stand for the socle of one degree, and in which order they are found.
class plain_selection {
 public:
  plain_selection(const plain_artinian& plain, int d) : unknowns_(plain.members(d)) {
    const auto passed_over = [&](const exponents& e) {
      const std::vector<exponents> above = plain.members(d + 1);
      for (const exponents& v : plain.members(1)) {
        exponents product = e;
        for (std::size_t j = 0; j < e.size(); ++j) product[j] += v[j];
        if (std::find(above.begin(), above.end(), product) != above.end()) return true;
      }
      return false;
    };
    while (!unknowns_.empty() && passed_over(unknowns_.back())) unknowns_.pop_back();
    std::reverse(unknowns_.begin(), unknowns_.end());
    rows_ = static_cast<int>(plain.members(1).size() * plain.members(d + 1).size());
    eliminate(plain, d);
  }

  // The unknowns that are free, the last one first: there is one element for each of them.
  const std::vector<exponents>& free_unknowns() const { return free_; }

  bool allows(const exponents& e) const {
    return std::find(unknowns_.begin(), unknowns_.end(), e) != unknowns_.end();
  }

 private:
  // Unknown after unknown, the greatest first; one that depends on those before changes places
  // with the last that has not been tried.
  void eliminate(const plain_artinian& plain, int d) {
    plain_echelon pivots;
    const int m = static_cast<int>(unknowns_.size());
    std::vector<exponents> order = unknowns_;
    int end = m;
    bool stuck = false;
    for (int k = 0; k < std::min(m, rows_) && !stuck; ++k) {
      while (!stuck && !pivots.add(plain.residue_of_products({{order[k], 1}}, d))) {
        stuck = k >= end - 1;
        if (!stuck) std::swap(order[k], order[--end]);
      }
    }
    free_.assign(order.rbegin(), order.rend() - pivots.rank());
  }

  std::vector<exponents> unknowns_;
  std::vector<exponents> free_;
  int rows_ = 0;
};

// The forms found, in the order in which they are: from the top degree down.
std::vector<plain_form> in_order_of_discovery(const plain_artinian& plain,
                                              const std::vector<plain_form>& found) {
  std::vector<plain_form> result;
  std::vector<exponents> top = plain.members(plain.top_degree());
  std::reverse(top.begin(), top.end());
  for (const exponents& e : top) result.push_back({{e, 1}});
  for (int d = plain.top_degree() - 1; d >= 1; --d) {
    const plain_selection selection(plain, d);
    for (const exponents& own : selection.free_unknowns()) {
      // The form with 1 at its own free unknown, 0 at the others.
      for (const plain_form& f : found) {
        const auto right = [&](const exponents& e) { return coefficient(f, e) == (e == own); };
        if (degree_of(f) == d &&
            std::all_of(selection.free_unknowns().begin(), selection.free_unknowns().end(),
                        right) &&
            std::all_of(f.begin(), f.end(),
                        [&](const auto& term) { return selection.allows(term.first); })) {
          result.push_back(f);
        }
      }
    }
  }
  return result;
}

// Ascending by leading monomials; equal ones keep their order.
std::vector<plain_form> ascending(std::vector<plain_form> found) {
  std::stable_sort(found.begin(), found.end(), [](const plain_form& f, const plain_form& g) {
    return monom_ordering_lt(monomial(f[0].first), monomial(g[0].first));
  });
  return found;
}

// Expects the elements that the elimination leaves, in ascending order. Returns how many have the
// leading monomial of the one before, so that the order in which they are found shows.
int ties_among_expected_elements(const std::vector<coordinates>& points) {
  const plain_artinian plain(points);
  const std::vector<plain_form> found = forms(computed(points));
  EXPECT_EQ(ascending(in_order_of_discovery(plain, found)), found);
  int ties = 0;
  for (std::size_t k = 1; k < found.size(); ++k) {
    ties += found[k][0].first == found[k - 1][0].first ? 1 : 0;
  }
  return ties;
}

TEST(SocleProperty, ElementsAreThoseThatTheEliminationLeavesInAscendingOrder) {
  int ties = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    ties += ties_among_expected_elements(points);
  });
  EXPECT_GT(ties, 20);
}

// Equations too many, even dependent ones, would let the elimination go on, and change the order.
TEST(SocleProperty, EliminationHasNoEquationsForVariablesOutsideO) {
  const ring_in_force ring(101, 4);
  std::mt19937 random(59);
  for (int round = 0; round < 5; ++round) {
    // In a hyperplane, which has ten monomials of degree up to 2.
    std::vector<coordinates> points = random_points(11, random);
    for (coordinates& point : points) point[3] = (point[0] + 2 * point[1] + 3 * point[2]) % 101;
    EXPECT_EQ(std::ssize(plain_artinian(points).members(1)), 3);
    EXPECT_GT(ties_among_expected_elements(points), 0);
  }
}

// Unknowns too many would let it come to its end sooner.
TEST(SocleProperty, EliminationHasNoUnknownsBeyondTheLastCandidate) {
  const ring_in_force ring(101, 4);
  std::mt19937 random(61);
  for (int round = 0; round < 5; ++round) {
    // X^2T is the only member of degree 3: the last coordinate is 0 at the first ten points, the
    // next three are a difference quotient in X, and the others fill up the smaller degrees.
    std::vector<coordinates> points = random_points(10, random);
    for (coordinates& point : points) point[3] = 0;
    for (int x = 0; x < 3; ++x) points.push_back({x, 0, 0, 1});
    for (const coordinates& other : random_points(3, random)) points.push_back(other);
    EXPECT_EQ(plain_artinian(points).members(3), (std::vector<exponents>{{2, 0, 0, 1}}));
    EXPECT_GT(ties_among_expected_elements(points), 0);
  }
}

// Expects what one large system for each degree gives; returns how many generators there are below
// the top degree.
int below_the_top_as_in_large_systems(const std::vector<coordinates>& points) {
  const points::order_ideal X = walked(points);
  const canonical_forms R = Can_Lf(X);
  const std::vector<polynomial> found = socle(X, R).gen;
  EXPECT_EQ(found, plain_socle(X, R));
  return static_cast<int>(found.size()) - R.dimension(R.top_degree());
}

TEST(SocleProperty, ElementsAreThoseOfOneLargeSystemForEachDegree) {
  for_each_set(
      [](const std::vector<coordinates>& points) { below_the_top_as_in_large_systems(points); });
  for_each_random_set({.seed = 107, .rounds = 10}, [](const std::vector<coordinates>& points) {
    below_the_top_as_in_large_systems(points);
  });
}

// With few and with many generators below the top degree, which few or many equations leave.
TEST(SocleProperty, ElementsOfLargerSetsAreThoseOfOneLargeSystemForEachDegree) {
  std::mt19937 random(109);
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 8, order);
    EXPECT_EQ(below_the_top_as_in_large_systems(random_points(330, random)), 0);
    EXPECT_GT(below_the_top_as_in_large_systems(random_points(167, random)), 50);
    EXPECT_GT(below_the_top_as_in_large_systems(random_points(172, random)), 20);
    std::vector<coordinates> points = points_of_grid(4, 3);
    for (const coordinates& other : random_points(60, random)) points.push_back(other);
    EXPECT_GT(below_the_top_as_in_large_systems(points), 0);
  }
}

}  // namespace
}  // namespace zep::tests
