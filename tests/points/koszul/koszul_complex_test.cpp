// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/koszul_complex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "linalg/row_operations.h"
#include "points/ideal/artinian_forms.h"
#include "tests/points/by_hand.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

using cell = koszul_complex::cell;
using kind = koszul_complex::kind;

// The complex of a set with what it refers to.
struct complex_of_points {
  explicit complex_of_points(points::order_ideal order_ideal)
      : X(std::move(order_ideal)), A(Can_Lf(X)), K(A) {}
  explicit complex_of_points(const std::vector<coordinates>& points)
      : complex_of_points(walked(points)) {}
  ~complex_of_points() = default;
  complex_of_points(const complex_of_points&) = delete;
  complex_of_points& operator=(const complex_of_points&) = delete;

  // In the order of their places.
  std::vector<cell> cells(int i, int j) const {
    std::vector<cell> all;
    for (const subset T : subsets(K.dim_V(), i)) {
      for (int m = A.begin(j); m < A.begin(j + 1); ++m) all.push_back({T, m});
    }
    return all;
  }

  // Calls use(i, j) for the bidegrees in which there is something, and those around.
  template <class Use>
  void for_each_bidegree(Use use) const {
    for (int i = -1; i <= K.dim_V() + 1; ++i) {
      for (int j = -1; j <= K.top_degree() + 1; ++j) use(i, j);
    }
  }

  row boundary(const cell& c) const {
    row chain(K.width(size(c.T) - 1, X.O[c.m].tot_deg() + 1));
    K.add_boundary(chain, c, Fp8(1));
    return chain;
  }

  // Of a chain of bidegree (i, j).
  row boundary(const_row_view chain, int i, int j) const {
    const std::vector<cell> all = cells(i, j);
    row sum(K.width(i - 1, j + 1));
    for (std::size_t k = 0; k < all.size(); ++k) K.add_boundary(sum, all[k], chain[k]);
    return sum;
  }

  points::order_ideal X;
  canonical_forms A;
  koszul_complex K;
};

// To compare sets of them.
std::pair<subset, int> pair_of(const cell& c) { return {c.T, c.m}; }

bool is_zero(const_row_view chain) {
  return std::all_of(chain.begin(), chain.end(), [](Fp8 x) { return x == 0; });
}

row random_chain(std::size_t width, std::mt19937& random) {
  row chain(width);
  for (Fp8& x : chain) x = below(random, Fp8::prime);
  return chain;
}

// Small sets in all rings that matter, and a few of higher dimension.
template <class Check>
void for_each_small_set(Check check) {
  for_each_set([&](const std::vector<coordinates>& points) {
    if (points.size() <= 22) check(points);
  });
  std::mt19937 random(103);
  for (const int p : {2, 3, 101}) {
    for (int n = 6; n <= 7; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        check(random_points(n - 2 + below(random, 12), random));
      }
    }
  }
}

matrix matrix_of(const std::vector<row>& rows, std::size_t width) {
  matrix m(static_cast<int>(width), static_cast<int>(rows.size()));
  for (int i = 0; i < m.rows(); ++i) std::copy(rows[i].begin(), rows[i].end(), m[i].begin());
  return m;
}

// Three points off a line: all products of X and Y are 0.
TEST(KoszulComplex, OfATriangleHasOnlyCriticalCellsInDegreeOne) {
  const ring_in_force ring(101, 2);
  const complex_of_points of(put_together(triangle_by_hand()));
  const koszul_complex& K = of.K;
  EXPECT_EQ(K.dim_V(), 2);
  EXPECT_EQ(K.top_degree(), 1);
  EXPECT_EQ(K.width(1, 1), 4U);
  EXPECT_EQ(K.width(2, 1), 2U);
  EXPECT_EQ(K.width(2, 2), 0U);
  EXPECT_EQ(K.no_of_critical(0, 0), 1);
  EXPECT_EQ(K.no_of_critical(1, 0), 0);
  EXPECT_EQ(K.no_of_critical(0, 1), 0);
  EXPECT_EQ(K.no_of_critical(1, 1), 3);
  EXPECT_EQ(K.no_of_critical(2, 1), 2);
  // O is 1, Y, X, and Y is the last variable: e_X (x) Y is the target of e_XY (x) 1.
  const cell target{single(0), 1};
  EXPECT_EQ(K.kind_of(target), kind::target);
  EXPECT_EQ(K.source_of(target), (cell{single(0) | single(1), 0}));
  EXPECT_EQ(K.kind_of({single(0), 2}), kind::critical);
  EXPECT_EQ(K.critical_cells(1, 1),
            (std::vector<cell>{{single(0), 2}, {single(1), 1}, {single(1), 2}}));
  EXPECT_EQ(K.places(K.critical_cells(1, 1)), (std::vector<std::size_t>{1, 2, 3}));
  // The boundary of e_XY (x) 1 is e_Y (x) X - e_X (x) Y.
  EXPECT_EQ(of.boundary({single(0) | single(1), 0}), row_of({-1, 0, 0, 1}));
}

// On the line x = 2y: V is spanned by Y alone.
TEST(KoszulComplex, HasOnlyTheVariablesOfTheOrderIdeal) {
  const ring_in_force ring(101, 2);
  const complex_of_points of(put_together(line_by_hand()));
  EXPECT_EQ(of.K.dim_V(), 1);
  EXPECT_EQ(of.K.width(1, 2), 1U);
  EXPECT_EQ(of.K.critical_cells(1, 2), (std::vector<cell>{{single(0), 2}}));
  EXPECT_EQ(of.K.kind_of({single(0), 1}), kind::source);
  EXPECT_EQ(of.boundary({single(0), 1}), row_of({1}));
}

TEST(KoszulComplex, OfOnePointIsOneCell) {
  const ring_in_force ring(101, 3);
  const complex_of_points of({{4, 5, 6}});
  EXPECT_EQ(of.K.dim_V(), 0);
  EXPECT_EQ(of.K.top_degree(), 0);
  of.for_each_bidegree(
      [&](int i, int j) { EXPECT_EQ(of.K.no_of_critical(i, j), i == 0 && j == 0 ? 1 : 0); });
  EXPECT_EQ(of.K.critical_cells(0, 0), (std::vector<cell>{{0, 0}}));
  EXPECT_TRUE(of.K.small_boundary({0, 0}).empty());
}

TEST(KoszulComplex, HasItsCellsInTheirPlaces) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    of.for_each_bidegree([&](int i, int j) {
      const std::vector<cell> all = of.cells(i, j);
      ASSERT_EQ(of.K.width(i, j), all.size());
      for (std::size_t k = 0; k < all.size(); ++k) ASSERT_EQ(of.K.place(all[k]), k);
    });
  });
}

TEST(KoszulComplex, CountsAndListsItsCriticalCells) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    of.for_each_bidegree([&](int i, int j) {
      std::vector<cell> critical;
      std::vector<std::size_t> places;
      for (const cell& c : of.cells(i, j)) {
        if (of.K.kind_of(c) != kind::critical) continue;
        critical.push_back(c);
        places.push_back(of.K.place(c));
      }
      ASSERT_EQ(of.K.no_of_critical(i, j), static_cast<std::int64_t>(critical.size()));
      ASSERT_EQ(of.K.critical_cells(i, j), critical);
      ASSERT_EQ(of.K.places(critical), places);
    });
  });
}

TEST(KoszulComplex, MatchesEachTargetWithASourceOfItsOwnThatHasItInItsBoundary) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    of.for_each_bidegree([&](int i, int j) {
      std::set<std::pair<subset, int>> sources;
      for (const cell& c : of.cells(i, j)) {
        if (of.K.kind_of(c) != kind::target) continue;
        const cell source = of.K.source_of(c);
        ASSERT_EQ(of.K.kind_of(source), kind::source);
        ASSERT_EQ(size(source.T), i + 1);
        ASSERT_TRUE(sources.insert(pair_of(source)).second);
        const Fp8 at_target = of.boundary(source)[of.K.place(c)];
        ASSERT_TRUE(at_target == 1 || at_target == -Fp8(1));
      }
      std::set<std::pair<subset, int>> expected;
      for (const cell& c : of.cells(i + 1, j - 1)) {
        if (of.K.kind_of(c) == kind::source) expected.insert(pair_of(c));
      }
      ASSERT_EQ(sources, expected);
    });
  });
}

// By the canonical forms themselves, one product after the other.
TEST(KoszulComplex, HasTheBoundariesOfItsDefinition) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    std::vector<int> variables;
    for (int v = 0; v < dim; ++v) {
      if (is_el_OO(of.X, variable(v)) >= 0) variables.push_back(v);
    }
    ASSERT_EQ(of.K.dim_V(), static_cast<int>(variables.size()));
    for (int j = 0; j < of.K.top_degree(); ++j) {
      for (const cell& c : of.cells(2, j)) {
        const int u = least(c.T);
        const int w = greatest(c.T);
        const auto h = static_cast<std::size_t>(of.A.dimension(j + 1));
        row expected(of.K.width(1, j + 1));
        row member(of.A.dimension(j));
        member[c.m - of.A.begin(j)] = Fp8(1);
        row negative = member;
        scale(negative, -Fp8(1));
        of.A.add_product(row_view(expected).subspan(w * h, h), member, j, variables[u]);
        of.A.add_product(row_view(expected).subspan(u * h, h), negative, j, variables[w]);
        ASSERT_EQ(of.boundary(c), expected);
      }
    }
  });
}

TEST(KoszulComplex, IsAComplex) {
  std::mt19937 random(107);
  for_each_small_set([&](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    of.for_each_bidegree([&](int i, int j) {
      if (i < 2) return;
      const row chain = random_chain(of.K.width(i, j), random);
      ASSERT_TRUE(is_zero(of.boundary(of.boundary(chain, i, j), i - 1, j + 1)));
    });
  });
}

// A source is used for its own target, each once, and the chain changes by their boundaries.
TEST(KoszulComplex, ClearsTargetsByBoundariesOfSources) {
  std::mt19937 random(109);
  for_each_small_set([&](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    of.for_each_bidegree([&](int i, int j) {
      const row before = random_chain(of.K.width(i, j), random);
      row expected = before;
      std::set<std::size_t> used;
      row chain = before;
      of.K.clear_targets(chain, i, j, [&](std::size_t target, const cell& source, Fp8 c) {
        ASSERT_EQ(of.K.kind_of(source), kind::source);
        ASSERT_EQ(of.K.source_of(of.cells(i, j)[target]), source);
        ASSERT_TRUE(used.insert(target).second);
        of.K.add_boundary(expected, source, c);
      });
      ASSERT_EQ(chain, expected);
      for (const cell& c : of.cells(i, j)) {
        ASSERT_TRUE(of.K.kind_of(c) != kind::target || chain[of.K.place(c)] == 0);
      }
      row again = before;
      of.K.clear_targets(again, i, j);
      ASSERT_EQ(again, chain);
    });
  });
}

TEST(KoszulComplex, ClearsNothingWhereNothingIsToBeCleared) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    of.for_each_bidegree([&](int i, int j) {
      row chain(of.K.width(i, j));
      for (const std::size_t place : of.K.places(of.K.critical_cells(i, j))) chain[place] = Fp8(1);
      const row before = chain;
      of.K.clear_targets(chain, i, j,
                         [](std::size_t, const cell&, Fp8) { FAIL() << "nothing is a target"; });
      ASSERT_EQ(chain, before);
    });
  });
}

// What a chain is at the critical cells.
row at_critical(const koszul_complex& K, const row& chain, int i, int j) {
  row picked;
  for (const std::size_t place : K.places(K.critical_cells(i, j))) picked.push_back(chain[place]);
  return picked;
}

std::vector<row> small_boundaries(const koszul_complex& K, int i, int j) {
  std::vector<row> rows;
  for (const cell& c : K.critical_cells(i, j)) {
    rows.push_back(at_critical(K, K.small_boundary(c), i - 1, j + 1));
  }
  return rows;
}

TEST(SmallComplex, IsAComplex) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    for (int j = 0; j < of.K.top_degree(); ++j) {
      for (int i = 2; i <= of.K.dim_V(); ++i) {
        const std::vector<row> second = small_boundaries(of.K, i - 1, j + 1);
        for (const row& first : small_boundaries(of.K, i, j)) {
          row sum(of.K.critical_cells(i - 2, j + 2).size());
          for (std::size_t k = 0; k < first.size(); ++k) {
            for (std::size_t l = 0; l < sum.size(); ++l) sum[l] += first[k] * second[k][l];
          }
          ASSERT_TRUE(is_zero(sum));
        }
      }
    }
  });
}

// All cells of two neighbours less the rank between them are as many as the critical ones less
// theirs.
TEST(SmallComplex, HasTheHomologyOfTheLargeOne) {
  for_each_small_set([](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    std::map<std::pair<int, int>, std::int64_t> large;
    std::map<std::pair<int, int>, std::int64_t> small;
    of.for_each_bidegree([&](int i, int j) {
      std::vector<row> boundaries;
      for (const cell& c : of.cells(i, j)) {
        if (i > 0) boundaries.push_back(of.boundary(c));
      }
      large[{i, j}] = rank(matrix_of(boundaries, of.K.width(i - 1, j + 1)));
      const auto critical = static_cast<std::size_t>(of.K.no_of_critical(i - 1, j + 1));
      small[{i, j}] = rank(matrix_of(small_boundaries(of.K, i, j), critical));
    });
    of.for_each_bidegree([&](int i, int j) {
      const std::int64_t of_large = large[{i, j}] + large[{i + 1, j - 1}];
      const std::int64_t of_small = small[{i, j}] + small[{i + 1, j - 1}];
      ASSERT_EQ(static_cast<std::int64_t>(of.K.width(i, j)) - of_large,
                of.K.no_of_critical(i, j) - of_small)
          << i << " " << j;
    });
  });
}

// Whether with a monomial that is no member also those are none where a variable is replaced by a
// greater one.
bool has_stable_leading_ideal(const points::order_ideal& X) {
  for (const monom& t : X.O) {
    for (int v = 0; v < dim; ++v) {
      for (int w = v + 1; w < dim && t.exp(v) > 0; ++w) {
        bool last = true;
        for (int u = w + 1; u < dim; ++u) last = last && t.exp(u) == 0;
        if (last && is_el_OO(X, t / variable(v) * variable(w)) < 0) return false;
      }
    }
  }
  return true;
}

// The resolution of Eliahou and Kervaire (Minimal resolutions of some monomial ideals, J. Algebra
// 129, 1990) has a generator of the i-th module for a minimal generator of the leading ideal and
// i - 1 variables above its last one.
TEST(SmallComplex, IsAsLargeAsTheResolutionOfAStableLeadingIdeal) {
  int stable = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const complex_of_points of(points);
    if (of.K.dim_V() < dim || !has_stable_leading_ideal(of.X)) return;
    ++stable;
    for (int i = 1; i <= dim; ++i) {
      for (int j = 0; j <= of.K.top_degree(); ++j) {
        std::int64_t number = 0;
        for (int g = 0; g < of.X.Ix.no_of_gens(); ++g) {
          const monom& lead = of.X.Ix.lead(g);
          int last = dim - 1;
          while (lead.exp(last) == 0) --last;
          if (lead.tot_deg() == j + 1) number += binomial(last, i - 1);
        }
        ASSERT_EQ(of.K.no_of_critical(i, j), number) << i << " " << j;
      }
    }
  });
  EXPECT_GT(stable, 20);
}

TEST(KoszulComplex, StopsAtAnInterrupt) {
  const ring_in_force ring(101, 4);
  std::mt19937 random(113);
  const complex_of_points of(random_points(20, random));
  request_interrupt();
  EXPECT_THROW(of.K.critical_cells(2, 1), interrupted);
  request_interrupt();
  EXPECT_THROW(of.K.small_boundary(cell{0b11, of.A.begin(1)}), interrupted);
  request_interrupt();
  EXPECT_THROW(koszul_complex(of.A).dim_V(), interrupted);
}

}  // namespace
}  // namespace zep::tests
