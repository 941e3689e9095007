// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "points/koszul/subsets.h"
#include "tests/points/betti_tables.h"
#include "tests/points/plain_presentation.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

int number(const std::vector<int>& numbers, int k) {
  return k < 0 || k >= static_cast<int>(numbers.size()) ? 0 : numbers[k];
}

int number_of_degree(const ideal& I, int d) {
  return static_cast<int>(std::count_if(
      I.gen.begin(), I.gen.end(), [d](const polynomial& f) { return f.term(0).tot_deg() == d; }));
}

// Calls check(r) for the rows of the table and one more on either side, which is to be 0.
template <class Check>
void for_each_row(const betti_table& B, Check check) {
  for (int r = B.first_row() - 1; r <= B.last_row() + 1; ++r) {
    SCOPED_TRACE("row " + std::to_string(r));
    check(r);
  }
}

template <class Check>
void for_each_entry(const betti_table& B, Check check) {
  for_each_row(B, [&](int r) {
    for (int i = 0; i <= B.n(); ++i) {
      SCOPED_TRACE("module " + std::to_string(i));
      check(i, r);
    }
  });
}

void expect_those_of_the_whole_complex(const std::vector<coordinates>& points) {
  const betti_table B = betti_of(points);
  const plain_artinian artinian(points);
  const plain_betti plain(artinian);
  ASSERT_EQ(B.first_row(), 0);
  ASSERT_EQ(B.last_row(), artinian.top_degree());
  for (int r = 0; r <= B.last_row(); ++r) {
    for (int i = 0; i <= dim; ++i) ASSERT_EQ(B(i, r), plain(i, i + r)) << i << " " << r;
  }
}

TEST(BettiNumbersProperty, AreThoseOfTheWholeKoszulComplex) {
  for_each_special_or_random_set(expect_those_of_the_whole_complex);
}

std::vector<coordinates> united(const std::vector<std::vector<coordinates>>& parts) {
  std::set<coordinates> all;
  for (const std::vector<coordinates>& part : parts) all.insert(part.begin(), part.end());
  return {all.begin(), all.end()};
}

// Tables with gaps in the rows between the linear strands, and something on either side of them.
TEST(BettiNumbersProperty, OfAGridWithACurveAreThoseOfTheWholeKoszulComplex) {
  std::mt19937 random(191);
  for (int round = 0; round < 60; ++round) {
    const int n = 3 + round % 3;
    const ring_in_force ring(101, n, round % 2 == 0 ? term_order::degrevlex : term_order::deglex);
    const auto grid = points_of_grid(n - below(random, 2), n == 3 ? 3 : 2);
    const auto curve = points_on_curve(1 + below(random, 2), 2 + below(random, 8));
    expect_those_of_the_whole_complex(united({moved(grid, random), moved(curve, random)}));
  }
}

TEST(BettiNumbersProperty, OfCurvesAreThoseOfTheWholeKoszulComplex) {
  std::mt19937 random(193);
  for (int round = 0; round < 60; ++round) {
    const ring_in_force ring(101, 4, round % 2 == 0 ? term_order::degrevlex : term_order::deglex);
    const auto conic = points_on_curve(2, 9 + below(random, 4));
    const auto other_conic = points_on_curve(2, 9 + below(random, 4));
    const auto quartic = points_on_curve(4, 5 + below(random, 4));
    expect_those_of_the_whole_complex(
        united({moved(conic, random), moved(other_conic, random), moved(quartic, random)}));
  }
}

TEST(BettiNumbersProperty, HoldTheLinearStrands) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    X.linid();
    X.linom();
    const auto& [of_I_X, of_w_R] = X.known().strands.linres;
    const betti_table B = betti_numbers(X.bu_mo(), X.Can_Lf());
    for (int i = 1; i <= dim; ++i) {
      ASSERT_EQ(B(i, X.bu_mo().H.alpha - 1), of_I_X[i - 1]) << "module " << i;
      ASSERT_EQ(B(i, X.bu_mo().H.sigma + 1), of_w_R[i - 1]) << "module " << i;
    }
  });
}

TEST(BettiNumbersProperty, BeginWithTheMinimalGenerators) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    const betti_table B = betti_numbers(X.bu_mo(), X.Can_Lf());
    const ideal& I = X.min_Ix();
    for_each_row(B, [&](int r) {
      ASSERT_EQ(B(0, r), r == 0 ? 1 : 0);
      ASSERT_EQ(B(1, r), number_of_degree(I, r + 1));
    });
  });
}

TEST(BettiNumbersProperty, EndWithTheSocle) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    const betti_table B = betti_numbers(X.bu_mo(), X.Can_Lf());
    const ideal& S = X.socle();
    std::int64_t type = 0;
    for_each_row(B, [&](int r) {
      type += B(dim, r);
      ASSERT_EQ(B(dim, r), number_of_degree(S, r));
    });
    ASSERT_EQ(type, static_cast<std::int64_t>(S.gen.size()));
    ASSERT_EQ(type == 1, X.is_ar_Go());
  });
}

// The projection to a member of degree d is an element of degree 1 - d of Ext^n(R, S(-n-1)).
TEST(BettiNumbersProperty, OfOmegaBeginWithItsGeneratorsAndRelations) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    const betti_table of_w_R = betti_of_w_R(betti_numbers(X.bu_mo(), X.Can_Lf()));
    const presentation& w_R = X.omega();
    const int top = w_R.sigma + 1;
    ASSERT_EQ(of_w_R.first_row(), 1 - top);
    std::int64_t relations = 0;
    for_each_row(of_w_R, [&](int r) {
      ASSERT_EQ(of_w_R(0, r), number(w_R.pr_deg, 1 - r));
      ASSERT_EQ(of_w_R(1, r), number(w_R.A_d_coldeg, r + top));
      relations += of_w_R(1, r);
    });
    ASSERT_EQ(relations, w_R.A_d_cols);
  });
}

TEST(BettiNumbersProperty, AddUpToTheHilbertFunctionOnEachDiagonal) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const betti_table B = betti_numbers(X, Can_Lf(X));
    for (int j = 0; j <= dim + B.last_row() + 1; ++j) {
      std::int64_t sum = 0;
      std::int64_t expected = 0;
      for (int k = 0; k <= dim; ++k) {
        const int sign = k % 2 == 0 ? 1 : -1;
        sum += sign * B(k, j - k);
        expected += sign * binomial(dim, k) * difference_function(X.H, j - k);
      }
      ASSERT_EQ(sum, expected) << "degree " << j;
    }
  });
}

TEST(BettiNumbersProperty, AreSymmetricForGorensteinSets) {
  int Gorenstein = 0;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    if (!X.is_ar_Go()) return;
    ++Gorenstein;
    const betti_table B = betti_numbers(X.bu_mo(), X.Can_Lf());
    for_each_entry(B, [&](int i, int r) { ASSERT_EQ(B(i, r), B(dim - i, B.last_row() - r)); });
  });
  EXPECT_GT(Gorenstein, 50);
}

TEST(BettiNumbersProperty, OfOmegaReadBackwardsAreThoseOfTheRing) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const betti_table B = betti_of(points);
    ASSERT_EQ(betti_of_w_R(betti_of_w_R(B)), B);
  });
}

TEST(BettiNumbersProperty, ReachTheRegularity) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const betti_table B = betti_numbers(X, Can_Lf(X));
    ASSERT_EQ(regularity(B), X.H.sigma + 1);
    ASSERT_EQ(B.last_row(), X.H.sigma + 1);
  });
}

// Semicontinuity: special points have at least the numbers of general ones with the same Hilbert
// function, which have at least the expected ones.
TEST(BettiNumbersProperty, AreAtLeastThoseThatAreExpectedWhereTheHilbertFunctionIs) {
  int as_expected = 0;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    for (int d = 0; d <= X.H.sigma + 1; ++d) {
      if (hilbert_function(X.H, d) != std::min<std::int64_t>(X.s(), binomial(dim + d, d))) return;
    }
    const betti_table B = betti_numbers(X, Can_Lf(X));
    const betti_table expected = expected_betti(dim, X.s());
    ASSERT_EQ(B.last_row(), expected.last_row());
    for_each_entry(B, [&](int i, int r) { ASSERT_GE(B(i, r), expected(i, r)); });
    if (B == expected) ++as_expected;
  });
  EXPECT_GT(as_expected, 100);
}

}  // namespace
}  // namespace zep::tests
