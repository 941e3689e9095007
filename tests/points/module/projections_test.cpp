// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/projections.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

// A syzygy monomial as exponents and owner.
using plain_syzygy = std::pair<exponents, int>;

std::vector<plain_syzygy> syzygies_of(const points::order_ideal& X) {
  std::vector<plain_syzygy> found;
  for (const auto& [T, owner] : syzygy_monomials(X, candidate_projections(X))) {
    found.emplace_back(exponents_of(T), owner);
  }
  return found;
}

std::vector<exponents> needed_of(const points::order_ideal& X) {
  std::vector<exponents> found;
  for (const monom& t : needed_monomials(X, syzygy_monomials(X, candidate_projections(X)))) {
    found.push_back(exponents_of(t));
  }
  return found;
}

exponents sum(exponents a, const exponents& b) {
  for (std::size_t j = 0; j < a.size(); ++j) a[j] += b[j];
  return a;
}

exponents over_gcd(exponents a, const exponents& b) {
  for (std::size_t j = 0; j < a.size(); ++j) a[j] -= std::min(a[j], b[j]);
  return a;
}

// All of them in the order in which they are made, then one by one the next that another one of
// its owner divides taken away.
std::vector<plain_syzygy> plain_syzygies(const std::vector<exponents>& candidates) {
  const int k = static_cast<int>(candidates.size());
  std::vector<plain_syzygy> all;
  for (int a = 0; a < k; ++a) {
    for (int b = a + 1; b < k; ++b) {
      all.emplace_back(over_gcd(candidates[a], candidates[b]), a);
    }
  }
  for (int a = 0; a < k; ++a) {
    for (int v = 0; v < dim; ++v) {
      exponents power(dim, 0);
      power[v] = candidates[a][v] + 1;
      all.emplace_back(power, a);
    }
  }
  for (std::size_t i = 0; i < all.size();) {
    bool dropped = false;
    for (std::size_t j = 0; j < all.size() && !dropped; ++j) {
      dropped = j != i && all[j].second == all[i].second && divides(all[j].first, all[i].first);
    }
    if (dropped) {
      all.erase(all.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      ++i;
    }
  }
  return all;
}

TEST(Projections, OfFiveGeneralPointsHaveThreeCandidatesAndNineSyzygies) {
  const ring_in_force ring;
  const points::order_ideal X = walked({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {3, 7, 11}});
  // The order ideal is 1, Z, Y, X, Z^2.
  EXPECT_EQ(candidate_projections(X), (std::vector<int>{2, 3, 4}));
  EXPECT_EQ(syzygies_of(X), (std::vector<plain_syzygy>{{{0, 1, 0}, 0},
                                                       {{1, 0, 0}, 1},
                                                       {{1, 0, 0}, 0},
                                                       {{0, 0, 1}, 0},
                                                       {{0, 1, 0}, 1},
                                                       {{0, 0, 1}, 1},
                                                       {{1, 0, 0}, 2},
                                                       {{0, 1, 0}, 2},
                                                       {{0, 0, 3}, 2}}));
  EXPECT_EQ(needed_of(X).size(), 12U);
}

TEST(Projections, OfOnePointAreThatToTheConstantKilledByTheVariables) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{3, 4}});
  EXPECT_EQ(candidate_projections(X), std::vector<int>{0});
  EXPECT_EQ(syzygies_of(X), (std::vector<plain_syzygy>{{{1, 0}, 0}, {{0, 1}, 0}}));
  EXPECT_EQ(needed_of(X), (std::vector<exponents>{{0, 1}, {1, 0}}));
}

TEST(Projections, OfNoPointsAreNone) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({});
  EXPECT_TRUE(candidate_projections(X).empty());
  EXPECT_TRUE(syzygies_of(X).empty());
  EXPECT_TRUE(needed_of(X).empty());
}

TEST(Projections, OfEqualSyzygyMonomialsTheLastStays) {
  const ring_in_force ring(101, 2);
  // The candidates of three points off a line are Y and X, and the pair gives Y, as does no power.
  const points::order_ideal X = walked({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(syzygies_of(X),
            (std::vector<plain_syzygy>{{{0, 1}, 0}, {{1, 0}, 0}, {{2, 0}, 1}, {{0, 1}, 1}}));
  // Those of a grid with a gap: 1, Y, X, Y^2, XY has the candidates Y^2 and XY.
  const points::order_ideal G = walked({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {0, 2}});
  EXPECT_EQ(syzygies_of(G),
            (std::vector<plain_syzygy>{{{0, 1}, 0}, {{1, 0}, 0}, {{2, 0}, 1}, {{0, 2}, 1}}));
}

TEST(Projections, DoNotCountWhatOnlyFillsTheOrderIdealUp) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked({{3, 4}, {3, 4}, {1, 1}});
  EXPECT_EQ(candidate_projections(X), std::vector<int>{1});
  const points::order_ideal one = walked({{3, 4}, {3, 4}});
  EXPECT_EQ(candidate_projections(one), std::vector<int>{0});
}

TEST(ProjectionsProperty, CandidatesAreTheMembersThatDivideNoOther) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const std::vector<exponents> O = plain_facts(points).order_ideal;
    std::vector<int> maximal;
    for (std::size_t i = 0; i < O.size(); ++i) {
      const auto multiples =
          std::count_if(O.begin(), O.end(), [&](const exponents& e) { return divides(O[i], e); });
      if (multiples == 1) maximal.push_back(static_cast<int>(i));
    }
    ASSERT_EQ(candidate_projections(X), maximal);
  });
}

TEST(ProjectionsProperty, SyzygyMonomialsAreThoseLeftWhenMultiplesAreTakenAwayOneByOne) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    std::vector<exponents> candidates;
    for (const int i : candidate_projections(X)) candidates.push_back(exponents_of(X.O[i]));
    ASSERT_EQ(syzygies_of(X), plain_syzygies(candidates));
  });
}

TEST(ProjectionsProperty, NeededMonomialsAreAllProductsOutsideTheOrderIdealAscending) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    std::vector<exponents> factors = plain_facts(points).order_ideal;
    const std::set<exponents> O(factors.begin(), factors.end());
    for (const auto& [T, owner] : syzygies_of(X)) {
      if (!O.contains(T)) factors.push_back(T);
    }
    std::set<exponents> products;
    for (const exponents& factor : factors) {
      for (const exponents& t : O) {
        if (!O.contains(sum(factor, t))) products.insert(sum(factor, t));
      }
    }
    std::vector<exponents> ascending(products.begin(), products.end());
    std::sort(ascending.begin(), ascending.end(), [](const exponents& a, const exponents& b) {
      return monom_ordering_lt(monomial(a), monomial(b));
    });
    ASSERT_EQ(needed_of(X), ascending);
  });
}

}  // namespace
}  // namespace zep::tests
