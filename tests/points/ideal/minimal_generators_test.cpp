// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/minimal_generators.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_minimal_generators.h"
#include "tests/points/point_sets.h"
#include "tests/points/printed.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

ideal generators_from(const points::order_ideal& X) { return min_Ix(X, Can_Lf(X)); }

ideal computed(const std::vector<coordinates>& points) { return generators_from(walked(points)); }

int degree_of(const polynomial& f) { return f.term(0).tot_deg(); }

int degree_with_homogenising_variable(const monom& m) { return m.tot_deg() + m.exp(proj - 1); }

std::vector<int> degrees(const std::vector<polynomial>& generators) {
  std::vector<int> result;
  for (const polynomial& f : generators) result.push_back(degree_of(f));
  return result;
}

// Forms of degree d in the homogeneous coordinates as rows: what is left when X_0 is 1 are the
// polynomials of degree up to d.
class forms_of_degree {
 public:
  explicit forms_of_degree(int d) : d_(d) {
    for (int e = 0; e <= d; ++e) {
      for (const exponents& m : monomials_of_degree(e)) columns_.emplace(m, columns_.size());
    }
  }

  int dimension() const { return static_cast<int>(columns_.size()); }

  std::vector<int> row(const polynomial& f, const exponents& factor) const {
    std::vector<int> result(columns_.size(), 0);
    for (int i = 0; i < f.no_of_monoms(); ++i) {
      exponents e = exponents_of(f.term(i));
      for (std::size_t j = 0; j < e.size(); ++j) e[j] += factor[j];
      result[columns_.at(e)] = f.coef(i).value();
    }
    return result;
  }

  std::vector<int> row(const polynomial& f) const { return row(f, exponents(dim, 0)); }

  // The span of all products with generators of smaller degree.
  plain_echelon products(const std::vector<polynomial>& generators) const {
    plain_echelon span;
    for (const polynomial& g : generators) {
      if (degree_of(g) >= d_) continue;
      for (int e = 0; e <= d_ - degree_of(g); ++e) {
        for (const exponents& factor : monomials_of_degree(e)) span.add(row(g, factor));
      }
    }
    return span;
  }

 private:
  int d_;
  std::map<exponents, std::size_t> columns_;
};

std::vector<polynomial> groebner_basis_of(const points::order_ideal& X) {
  std::vector<polynomial> elements;
  for (int g = 0; g < X.Ix.no_of_gens(); ++g) elements.push_back(groebner_element(X, g));
  return elements;
}

// Tells which elements of the Groebner basis can be left out together.
class plain_choice {
 public:
  explicit plain_choice(const std::vector<polynomial>& basis) : basis_(basis) {
    std::map<int, plain_echelon> known;
    for (const polynomial& g : basis) {
      const forms_of_degree forms(degree_of(g));
      if (!known.contains(degree_of(g))) known[degree_of(g)] = forms.products(basis);
      news_.push_back(known[degree_of(g)].reduced(forms.row(g)));
      all_[degree_of(g)].add(news_.back());
    }
  }

  // True when the elements that are not crossed out generate everything.
  bool others_generate(const std::vector<int>& crossed_out) const {
    std::map<int, plain_echelon> others;
    for (std::size_t g = 0; g < basis_.size(); ++g) {
      const bool out = std::find(crossed_out.begin(), crossed_out.end(), static_cast<int>(g)) !=
                       crossed_out.end();
      if (!out) others[degree_of(basis_[g])].add(news_[g]);
    }
    return std::all_of(all_.begin(), all_.end(), [&](const auto& entry) {
      return others[entry.first].rank() == entry.second.rank();
    });
  }

  // What is needed when elements are crossed out one after another, at most `rows` of them; one
  // that can't be crossed out changes places with the last that has not been tried.
  std::vector<int> needed(int rows) const {
    const int n = static_cast<int>(basis_.size());
    std::vector<int> order(basis_.size());
    std::iota(order.begin(), order.end(), 0);
    int end = n;
    for (int k = 0; k < std::min(n, rows); ++k) {
      const auto first = order.begin();
      while (!others_generate({first, first + k + 1})) {
        if (k >= end - 1) {
          order.erase(order.begin(), first + k);
          return order;
        }
        std::swap(order[k], order[--end]);
      }
    }
    order.erase(order.begin(), order.begin() + std::min(n, rows));
    return order;
  }

 private:
  const std::vector<polynomial>& basis_;
  // The elements modulo what those of smaller degree generate.
  std::vector<std::vector<int>> news_;
  std::map<int, plain_echelon> all_;
};

int last_larger(const exponents& a, const exponents& b) {
  int slot = -1;
  for (std::size_t j = 0; j < a.size(); ++j) {
    if (a[j] > b[j]) slot = static_cast<int>(j);
  }
  return slot;
}

// Pairs of basis elements whose leading monomials have a least common multiple that is two
// variables away from the order ideal.
int pairs_of_neighbours(const std::vector<polynomial>& basis, const plain_facts& facts) {
  int pairs = 0;
  for (std::size_t i = 0; i < basis.size(); ++i) {
    const exponents s = exponents_of(basis[i].term(0));
    for (std::size_t j = i + 1; j < basis.size(); ++j) {
      const exponents t = exponents_of(basis[j].term(0));
      exponents P;
      for (std::size_t k = 0; k < s.size(); ++k) P.push_back(std::max(s[k], t[k]));
      --P[last_larger(s, t)];
      --P[last_larger(t, s)];
      pairs += std::count(facts.order_ideal.begin(), facts.order_ideal.end(), P) > 0 ? 1 : 0;
    }
  }
  return pairs;
}

// Ascending by degree; each choice lets the last candidate move into the place of the chosen.
std::vector<int> ascending(std::vector<int> candidates, const std::vector<polynomial>& basis) {
  std::vector<int> sorted;
  while (!candidates.empty()) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < candidates.size(); ++i) {
      if (degree_of(basis[candidates[i]]) < degree_of(basis[candidates[best]])) best = i;
    }
    sorted.push_back(candidates[best]);
    candidates[best] = candidates.back();
    candidates.pop_back();
  }
  return sorted;
}

using texts = std::vector<std::string>;

TEST(MinIx, OfOnePointHoldsBothLinearFormsTheSecondFirst) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(printed(computed({{3, 4}})), (texts{"X-3Z", "Y-4Z"}));
}

TEST(MinIx, OfTheTriangleHoldsThreeQuadrics) {
  const ring_in_force ring(101, 2);
  texts quadrics = printed(computed({{0, 0}, {1, 0}, {0, 1}}));
  std::sort(quadrics.begin(), quadrics.end());
  EXPECT_EQ(quadrics, (texts{"X2-XZ", "XY", "Y2-YZ"}));
}

TEST(MinIx, OfCompleteIntersectionsLeavesOutTheRestOfTheGroebnerBasis) {
  const ring_in_force ring(101, 2, term_order::degrevlex);
  EXPECT_EQ(degrees(computed(points_on_curve(2, 6)).gen), (std::vector<int>{2, 3}));
  const points::order_ideal X = walked({{0, 0}, {1, 2}, {2, 1}, {5, 7}});
  EXPECT_EQ(degrees(generators_from(X).gen), (std::vector<int>{2, 2}));
  EXPECT_GT(X.Ix.no_of_gens(), 2);
}

TEST(MinIx, OfALineAndOfATwistedCubicHoldsTheirEquationsFirst) {
  const ring_in_force ring(101, 3);
  EXPECT_EQ(degrees(computed(points_on_curve(1, 5)).gen), (std::vector<int>{1, 1, 5}));
  EXPECT_EQ(degrees(computed(points_on_curve(3, 8)).gen), (std::vector<int>{2, 2, 2, 3, 3}));
}

TEST(MinIx, OfNoPointsIsEmpty) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(computed({}).no_of_gens(), 0);
}

TEST(MinIx, OfMeaninglessPointsIsAPartOfTheGroebnerBasisAllTheSame) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const ideal generators = generators_from(X);
    EXPECT_LE(generators.no_of_gens(), X.Ix.no_of_gens());
    const std::vector<int> found = degrees(generators.gen);
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
  });
}

TEST(MinIxProperty, GeneratorsAreFormsThatVanishAscendingByDegree) {
  for_each_set([](const std::vector<coordinates>& points) {
    const ideal generators = computed(points);
    for (const polynomial& f : generators.gen) {
      for (int i = 0; i < f.no_of_monoms(); ++i) {
        ASSERT_EQ(f.term(i).dim(), proj);
        ASSERT_GE(f.term(i).exp(proj - 1), 0);
        ASSERT_EQ(degree_with_homogenising_variable(f.term(i)), degree_of(f));
      }
      for (const coordinates& point : points) ASSERT_EQ(value_at(f, point), 0);
    }
    const std::vector<int> found = degrees(generators.gen);
    ASSERT_TRUE(std::is_sorted(found.begin(), found.end()));
  });
}

// Above the degree sigma + 2 nothing new is needed, so the generators are all met on the way.
TEST(MinIxProperty, GenerateTheVanishingIdealAndNoneCanBeLeftOut) {
  for_each_set([](const std::vector<coordinates>& points) {
    const std::vector<polynomial> generators = computed(points).gen;
    const std::vector<int> hilbert = plain_facts(points).hilbert;
    std::size_t met = 0;
    for (std::size_t d = 0; d <= hilbert.size(); ++d) {
      const forms_of_degree forms(static_cast<int>(d));
      plain_echelon span = forms.products(generators);
      for (; met < generators.size() && degree_of(generators[met]) == static_cast<int>(d); ++met) {
        ASSERT_TRUE(span.add(forms.row(generators[met]))) << "generator " << met + 1;
      }
      ASSERT_EQ(span.rank(), forms.dimension() - hilbert[std::min(d, hilbert.size() - 1)]);
    }
    ASSERT_EQ(met, generators.size());
  });
}

TEST(MinIxProperty, DegreesDoNotDependOnTheTermOrder) {
  std::mt19937 random(47);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 5; ++n) {
      std::vector<named_points> sets;
      {
        const ring_in_force ring(p, n);
        sets = sets_of_points(random);
      }
      for (const auto& [name, points] : sets) {
        std::vector<std::vector<int>> found;
        for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
          const ring_in_force ring(p, n, order);
          found.push_back(degrees(computed(points).gen));
        }
        EXPECT_EQ(found[0], found[1]) << name;
      }
    }
  }
}

TEST(MinIxProperty, KeepsTheElementsThatTheEliminationLeaves) {
  int left_out = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const ideal generators = generators_from(X);
    const std::vector<polynomial> basis = groebner_basis_of(X);
    const std::vector<int> needed =
        plain_choice(basis).needed(pairs_of_neighbours(basis, plain_facts(points)));
    const std::vector<int> expected = ascending(needed, basis);
    ASSERT_EQ(expected.size(), generators.gen.size());
    for (std::size_t m = 0; m < expected.size(); ++m) {
      polynomial f;
      hom(f, basis[expected[m]]);
      ASSERT_EQ(generators.gen[m], f) << "generator " << m + 1;
    }
    left_out += static_cast<int>(basis.size() - expected.size());
  });
  EXPECT_GT(left_out, 100);
}

// Expects the elements that the plain way keeps; returns how many others there are.
int left_out_as_in_the_plain_way(const std::vector<coordinates>& points) {
  const points::order_ideal X = walked(points);
  const ideal generators = generators_from(X);
  const std::vector<int> kept = plain_minimal_elements(X, Can_Lf(X));
  EXPECT_EQ(kept.size(), generators.gen.size());
  for (std::size_t m = 0; m < std::min(kept.size(), generators.gen.size()); ++m) {
    polynomial f;
    hom(f, groebner_element(X, kept[m]));
    EXPECT_EQ(generators.gen[m], f) << "generator " << m + 1;
  }
  return X.Ix.no_of_gens() - generators.no_of_gens();
}

TEST(MinIxProperty, KeepsWhatIsKeptPairByPairAndRowByRow) {
  for_each_set(
      [](const std::vector<coordinates>& points) { left_out_as_in_the_plain_way(points); });
  for_each_random_set({.seed = 89, .rounds = 10}, [](const std::vector<coordinates>& points) {
    left_out_as_in_the_plain_way(points);
  });
}

// More relations, border monomials and basis elements than are worked on together, and degrees in
// which all, some or none of the basis elements are superfluous.
TEST(MinIxProperty, KeepsWhatIsKeptPairByPairAndRowByRowOfLargerSets) {
  struct size {
    int n;
    int points;
    int left_out;
  };
  std::mt19937 random(83);
  // P^8 has 45 monomials of degree up to 2, 165 of degree up to 3.
  for (const auto& [n, s, left_out] : {size{8, 145, 40}, {8, 166, 0}, {8, 330, 100}, {10, 62, 4}}) {
    const ring_in_force ring(101, n);
    SCOPED_TRACE(std::to_string(s) + " points of P^" + std::to_string(n));
    EXPECT_GE(left_out_as_in_the_plain_way(random_points(s, random)), left_out);
  }
}

TEST(MinIxProperty, KeepsWhatIsKeptPairByPairAndRowByRowOfSpecialLargerSets) {
  const ring_in_force ring(101, 8);
  std::mt19937 random(79);
  EXPECT_GT(left_out_as_in_the_plain_way(points_on_curve(8, 30)), 0);
  EXPECT_EQ(left_out_as_in_the_plain_way(points_of_grid(8, 2)), 0);
  std::vector<coordinates> points = points_of_grid(4, 3);
  for (const coordinates& other : random_points(60, random)) points.push_back(other);
  EXPECT_GT(left_out_as_in_the_plain_way(points), 20);
}

}  // namespace
}  // namespace zep::tests
