// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/betti_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <string>

#include "points/koszul/subsets.h"
#include "tests/points/betti_tables.h"
#include "tests/points/by_hand.h"
#include "tests/points/interrupting.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

template <class Check>
void for_each_small_ring(Check check) {
  for (const int p : {2, 3, 5, 101, 251}) {
    for (const int n : {2, 3, 5, 8}) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        SCOPED_TRACE("P^" + std::to_string(n) + " over F_" + std::to_string(p));
        const ring_in_force ring(p, n, order);
        check();
      }
    }
  }
}

table_row binomials(int n, int k) {
  table_row row;
  for (int i = 0; i <= n; ++i) row.push_back(binomial(k, i));
  return row;
}

TEST(BettiNumbers, NeedNothingButAnOrderIdealWithItsForms) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = put_together(triangle_by_hand());
  EXPECT_EQ(betti_numbers(X, Can_Lf(X)), table_of({{1, 0, 0}, {0, 3, 2}}));
}

TEST(BettiNumbers, OfOnePointAreThoseOfItsLinearForms) {
  for_each_small_ring(
      [] { EXPECT_EQ(betti_of({coordinates(dim, 1)}), table_of({binomials(dim, dim)})); });
}

// A form of the degree of the set, and the linear forms of the line.
TEST(BettiNumbers, OfPointsOnALineAreThoseOfACompleteIntersection) {
  for_each_small_ring([] {
    for (int s = 2; s <= std::min(Fp8::prime, 6); ++s) {
      std::vector<int> degrees(dim, 1);
      degrees.front() = s;
      EXPECT_EQ(betti_of(points_on_curve(1, s)), table_of_complete_intersection(degrees));
    }
  });
}

// Where the line has no coordinate that is constant.
TEST(BettiNumbers, OfPointsOnALineDoNotDependOnWhereItIs) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(7, 3, order);
    EXPECT_EQ(betti_of({{1, 2, 3}, {2, 4, 6}, {3, 6, 2}, {4, 1, 5}}),
              table_of_complete_intersection({4, 1, 1}));
  }
}

TEST(BettiNumbers, OfPointsInAHyperplaneAreThoseWithinItAndALinearForm) {
  std::mt19937 random(127);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 3; n <= 6; ++n) {
      std::vector<coordinates> points;
      const betti_table within = [&] {
        const ring_in_force ring(p, n - 1);
        points = random_points(3 + below(random, 15), random);
        return betti_of(points);
      }();
      // A new coordinate, the sum of 1 and the others.
      const int place = below(random, n);
      for (coordinates& x : points) {
        x.insert(x.begin() + place, std::accumulate(x.begin(), x.end(), 1) % p);
      }
      const ring_in_force ring(p, n);
      EXPECT_EQ(betti_of(points), over_more_variables(within, 1));
    }
  }
}

TEST(BettiNumbers, OfAFrameAreThoseOfAGorensteinSet) {
  const ring_in_force ring(101, 4);
  EXPECT_EQ(betti_of(points_of_frame()),
            table_of({{1, 0, 0, 0, 0}, {0, 9, 16, 9, 0}, {0, 0, 0, 0, 1}}));
}

// The equations are x_v^p = x_v.
TEST(BettiNumbers, OfAllPointsWithoutThoseAtInfinityAreThoseOfACompleteIntersection) {
  for (const auto& [p, n] : std::vector<std::pair<int, int>>{
           {2, 2}, {2, 3}, {2, 5}, {2, 7}, {3, 2}, {3, 4}, {5, 3}, {7, 2}}) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(p, n, order);
      EXPECT_EQ(betti_of(points_of_grid(n, p)),
                table_of_complete_intersection(std::vector<int>(n, p)));
    }
  }
}

// The powers of the maximal ideal have linear resolutions.
TEST(BettiNumbers, OfAsManyPointsAsMonomialsUpToADegreeStandInOneRow) {
  const ring_in_force ring(101, 4);
  std::mt19937 random(131);
  EXPECT_EQ(betti_of(random_points(15, random)),
            table_of({{1, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 20, 45, 36, 10}}));
}

TEST(BettiNumbers, DoNotDependOnTheOrder) {
  std::mt19937 random(137);
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 7; ++n) {
      std::vector<coordinates> points;
      const auto with = [&](term_order order) {
        const ring_in_force ring(p, n, order);
        if (points.empty()) points = random_points(2 + below(random, 30), random);
        return betti_of(points);
      };
      EXPECT_EQ(with(term_order::deglex), with(term_order::degrevlex));
    }
  }
}

TEST(BettiNumbers, DoNotDependOnTheOrderOfPointsAndCoordinates) {
  const ring_in_force ring(3, 5);
  std::mt19937 random(139);
  for (int round = 0; round < 10; ++round) {
    std::vector<coordinates> points = random_points(5 + 3 * round, random);
    const betti_table B = betti_of(points);
    std::reverse(points.begin(), points.end());
    for (coordinates& x : points) std::reverse(x.begin(), x.end());
    EXPECT_EQ(betti_of(points), B);
  }
}

void expect_refusal(const std::vector<coordinates>& points, const std::string& reason) {
  const points::order_ideal X = walked(points);
  const canonical_forms A = Can_Lf(X);
  try {
    betti_numbers(X, A);
    FAIL() << "no refusal";
  } catch (const std::invalid_argument& refusal) {
    EXPECT_EQ(refusal.what(), reason);
  }
}

TEST(BettiNumbers, AreRefusedWhereTheyMeanNothing) {
  {
    const ring_in_force ring(101, 3);
    expect_refusal({}, "there are no points");
    expect_refusal({{1, 2, 3}, {1, 2, 3}}, "there are equal points");
    expect_refusal({{1, 2, 3}, {4, 5, 6}, {1, 2, 3}}, "there are equal points");
  }
  for (const int m : {4, 6, 9, 121, 250}) {
    const ring_in_force ring(m, 2);
    const std::string reason = std::to_string(m) + " is not a prime";
    expect_refusal({{1, 2}}, reason);
    expect_refusal({{1, 0}, {0, 1}, {1, 1}, {0, 0}}, reason);
    expect_refusal({}, reason);
  }
}

TEST(BettiNumbers, OfMeaninglessPointsAreRefused) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    if (is_meaningful(X)) return;
    EXPECT_THROW(betti_numbers(X, Can_Lf(X)), std::invalid_argument);
  });
}

// There are 10 million sets of 13 variables.
TEST(BettiNumbers, OfSetsWithChainsThatAreTooLongAreRefused) {
  const ring_in_force ring(2, 26);
  std::mt19937 random(149);
  const points::order_ideal X = walked(random_points(700, random));
  EXPECT_THROW(betti_numbers(X, Can_Lf(X)), std::length_error);
}

// Until it comes behind the end.
TEST(BettiNumbers, EndAtAnInterruptAtAnyMoment) {
  for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
    const ring_in_force ring(101, 5, order);
    std::mt19937 random(151);
    const points::order_ideal X = walked(random_points(30, random));
    const canonical_forms A = Can_Lf(X);
    const betti_table undisturbed = betti_numbers(X, A);
    int ended = 0;
    for (int k = 0; k < 100000; k += 1 + k / 5) {
      try {
        const interruption when(k);
        EXPECT_EQ(betti_numbers(X, A), undisturbed);
        break;
      } catch (const interrupted&) {
        ++ended;
      }
      expect_in_force({101, 5, default_names, order});
      ASSERT_EQ(betti_numbers(X, A), undisturbed);
    }
    EXPECT_GT(ended, 5);
  }
}

}  // namespace
}  // namespace zep::tests
