// SPDX-License-Identifier: GPL-3.0-or-later
// What others have found out about resolutions of points.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <utility>
#include <vector>

#include "points/koszul/subsets.h"
#include "tests/points/betti_tables.h"
#include "tests/points/self_associated.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

betti_table betti_of_random_points(int s, unsigned seed) {
  std::mt19937 random(seed);
  return betti_of(random_points(s, random));
}

// Eisenbud, Popescu: Gale duality and free resolutions of ideals of points, Invent. Math. 136,
// 1999. Whatever the points are that have their Hilbert function, they can't have fewer syzygies
// than general ones.
TEST(GaleDuality, LetsGeneralPointsOfSomeSpacesMissTheExpectedTable) {
  for (const auto& [n, s] : std::vector<std::pair<int, int>>{{6, 11}, {7, 12}, {8, 13}, {10, 16}}) {
    const ring_in_force ring(101, n);
    const betti_table expected = expected_betti(n, s);
    for (const unsigned seed : {157U, 163U}) {
      const betti_table B = betti_of_random_points(s, seed);
      EXPECT_NE(B, expected) << s << " points of P^" << n;
      EXPECT_EQ(B.last_row(), expected.last_row());
      for (int i = 0; i <= n; ++i) {
        for (int r = 0; r <= 2; ++r) EXPECT_GE(B(i, r), expected(i, r));
      }
    }
  }
}

// The same place; one set is enough for the general one.
TEST(GaleDuality, LetsGeneralPointsOfOtherSpacesBeAsExpected) {
  for (const auto& [n, s] :
       std::vector<std::pair<int, int>>{{5, 9}, {6, 10}, {6, 12}, {7, 11}, {9, 14}}) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(betti_of_random_points(s, 167), expected_betti(n, s)) << s << " points of P^" << n;
  }
}

// Green, Lazarsfeld: Some results on the syzygies of finite sets and algebraic curves, Compositio
// Math. 67, 1988: 2n + 1 - p points in linearly general position have property N_p.
TEST(PropertyN, HoldsForFewPointsInLinearlyGeneralPosition) {
  for (int n = 2; n <= 9; ++n) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(101, n, order);
      for (int p = 1; p < n; ++p) {
        EXPECT_GE(largest_N_p(betti_of(points_on_curve(n, 2 * n + 1 - p))), p) << n << " " << p;
      }
    }
  }
}

// There the number is as large as it can be on rational normal curves.
TEST(PropertyN, FailsForOnePointMoreOnARationalNormalCurve) {
  for (int n = 2; n <= 9; ++n) {
    const ring_in_force ring(101, n);
    for (int p = 1; p <= n; ++p) {
      EXPECT_LT(largest_N_p(betti_of(points_on_curve(n, 2 * n + 2 - p))), p) << n << " " << p;
    }
  }
}

// Eisenbud: The geometry of syzygies, section 6B: the curve is cut out by the minors of a matrix of
// 2 x n linear forms, and has the resolution of Eagon and Northcott. No other quadrics contain more
// than 2n points of it (Castelnuovo).
TEST(RationalNormalCurve, GivesItsPointsTheNumbersOfEagonAndNorthcott) {
  for (int n = 2; n <= 8; ++n) {
    const ring_in_force ring(101, n);
    for (const int s : {2 * n + 1, 2 * n + 2, 3 * n + 1, 4 * n, 5 * n + 3}) {
      const betti_table B = betti_of(points_on_curve(n, s));
      EXPECT_EQ(B(0, 1), 0);
      for (int i = 1; i <= n; ++i) EXPECT_EQ(B(i, 1), i * binomial(n, i + 1)) << s << " " << i;
    }
  }
}

// Renteria, Simis, Villarreal: Algebraic methods for parameterized codes and invariants of
// vanishing ideals over finite fields, Finite Fields Appl. 17, 2011: the equations of a projective
// torus are x_v^(p-1) = x_0^(p-1).
TEST(Torus, IsACompleteIntersection) {
  for (const auto& [p, n] : std::vector<std::pair<int, int>>{{7, 3}, {5, 3}, {3, 6}, {11, 2}}) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(p, n, order);
      std::vector<coordinates> torus = points_of_grid(n, p);
      torus.erase(std::remove_if(torus.begin(), torus.end(),
                                 [](const coordinates& x) {
                                   return std::find(x.begin(), x.end(), 0) != x.end();
                                 }),
                  torus.end());
      EXPECT_EQ(betti_of(torus), table_of_complete_intersection(std::vector<int>(n, p - 1)));
    }
  }
}

// The products of as many linear forms as the grid is wide in each direction.
TEST(Grid, IsACompleteIntersection) {
  std::mt19937 random(181);
  for (const std::vector<int>& widths : std::vector<std::vector<int>>{{2, 3},
                                                                      {4, 4},
                                                                      {2, 3, 4},
                                                                      {4, 2, 2},
                                                                      {3, 3, 3},
                                                                      {2, 2, 2, 2},
                                                                      {2, 2, 3, 2},
                                                                      {3, 3, 3, 3},
                                                                      {2, 2, 2, 2, 2},
                                                                      {3, 2, 4, 2, 2},
                                                                      {2, 2, 2, 2, 2, 2}}) {
    const int n = static_cast<int>(widths.size());
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(101, n, order);
      std::vector<coordinates> grid;
      for (const coordinates& x : points_of_grid(n, 4)) {
        if (std::equal(x.begin(), x.end(), widths.begin(), std::less<>())) grid.push_back(x);
      }
      EXPECT_EQ(betti_of(grid), table_of_complete_intersection(widths));
      EXPECT_EQ(betti_of(moved(grid, random)), table_of_complete_intersection(widths));
    }
  }
}

// They have the table of canonical curves of genus 8, of which general ones are sections of the
// Grassmannian G(2,6) (Mukai: Curves and Grassmannians, 1993); N_2 holds and no more, as Green's
// conjecture says of Clifford index 3 (Schreyer: Syzygies of canonical curves and special linear
// series, Math. Ann. 275, 1986).
TEST(SelfAssociatedPoints, OfP6HaveTheTableOfACanonicalCurve) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 6, order);
    std::mt19937 random(173);
    const betti_table B = betti_of(self_associated_points(random));
    EXPECT_EQ(B, table_of({{1, 0, 0, 0, 0, 0, 0},
                           {0, 15, 35, 21, 0, 0, 0},
                           {0, 0, 0, 21, 35, 15, 0},
                           {0, 0, 0, 0, 0, 0, 1}}));
    EXPECT_EQ(largest_N_p(B), 2);
  }
}

// Sections of canonical curves of genus n + 2 are self-associated, so that general self-associated
// points have no more syzygies. General curves have Clifford index k, the integral part of (n + 1)
// / 2, and property N_(k-1) (Aprodu, Farkas, Papadima, Raicu, Weyman: Koszul modules and Green's
// conjecture, Invent. Math. 218, 2019, in characteristics from (n + 4) / 2 on).
TEST(SelfAssociatedPoints, HaveTheLinearSyzygiesOfGeneralCanonicalCurves) {
  for (int n = 3; n <= 9; ++n) {
    const ring_in_force ring(101, n);
    std::mt19937 random(179);
    const betti_table B = betti_of(self_associated_points(random));
    EXPECT_EQ(B.last_row(), 3);
    EXPECT_EQ(B(n, 3), 1);
    for (int i = 0; i <= n; ++i) EXPECT_EQ(B(i, 2), B(n - i, 1)) << "P^" << n << ", " << i;
    EXPECT_EQ(largest_N_p(B), (n + 1) / 2 - 1) << "P^" << n;
  }
}

}  // namespace
}  // namespace zep::tests
