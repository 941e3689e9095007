// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/column_choice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "linalg/matrix.h"
#include "linalg/row_space.h"
#include "tests/draw.h"
#include "tests/linalg/random_matrices.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

column_choice choice_of(const matrix& m) {
  row_space space(m.cols());
  for (int i = 0; i < m.rows(); ++i) space.add({m[i].begin(), m[i].end()});
  return {m.cols(), space.reduced(), space.pivots()};
}

matrix columns_of(const matrix& m, const std::vector<int>& columns) {
  matrix part(static_cast<int>(columns.size()), m.rows());
  for (int i = 0; i < m.rows(); ++i) {
    for (std::size_t k = 0; k < columns.size(); ++k) part[i][k] = m[i][columns[k]];
  }
  return part;
}

// Of various ranks and sizes, over four fields.
template <class Check>
void for_random_matrices(Check check) {
  std::mt19937 random(71);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 200; ++round) {
      matrix m = random_matrix(random, 1 + below(random, 9), 1 + below(random, 9), round % 10);
      for (int k = below(random, 4); k > 0; --k) make_dependent(random, m);
      check(m, random);
    }
  }
}

TEST(ColumnChoice, TakesTheColumnsThatAreIndependentOfThoseTakenBefore) {
  for_random_matrices([](const matrix& m, std::mt19937& random) {
    column_choice choice = choice_of(m);
    std::vector<int> chosen;
    for (const int column : random_order(random, m.cols())) {
      std::vector<int> with = chosen;
      with.push_back(column);
      const bool independent = rank(columns_of(m, with)) > rank(columns_of(m, chosen));
      ASSERT_EQ(choice.choose(column), independent);
      if (independent) chosen = with;
    }
    ASSERT_EQ(static_cast<int>(chosen.size()), choice.rank());
  });
}

TEST(ColumnChoice, HasOneAtItsPivotsAndZeroAtTheOthers) {
  for_random_matrices([](const matrix& m, std::mt19937& random) {
    column_choice choice = choice_of(m);
    std::vector<int> chosen;
    for (const int column : random_order(random, m.cols())) {
      if (choice.choose(column)) chosen.push_back(column);
    }
    std::vector<int> pivots;
    for (int i = 0; i < choice.rank(); ++i) {
      pivots.push_back(choice.pivot(i));
      for (int k = 0; k < choice.rank(); ++k) {
        ASSERT_EQ(choice[i][choice.pivot(k)], i == k ? 1 : 0);
      }
    }
    ASSERT_TRUE(std::is_permutation(pivots.begin(), pivots.end(), chosen.begin(), chosen.end()));
  });
}

TEST(ColumnChoice, SpansTheSameRowsAfterEachChoice) {
  for_random_matrices([](const matrix& m, std::mt19937& random) {
    column_choice choice = choice_of(m);
    for (const int column : random_order(random, m.cols())) {
      choice.choose(column);
      matrix both(m.cols(), m.rows() + choice.rank());
      for (int i = 0; i < m.rows(); ++i) std::copy(m[i].begin(), m[i].end(), both[i].begin());
      for (int i = 0; i < choice.rank(); ++i) {
        std::copy(choice[i].begin(), choice[i].end(), both[m.rows() + i].begin());
      }
      ASSERT_EQ(rank(both), choice.rank());
    }
  });
}

TEST(ColumnChoice, OfNothingTakesNoColumn) {
  const ring_in_force ring(101);
  column_choice none(3, {}, {});
  EXPECT_FALSE(none.choose(2));
  EXPECT_EQ(none.rank(), 0);
}

TEST(FreeColumns, AreThoseThatSolveLeavesInItsOrder) {
  int exchanged = 0;
  for_random_matrices([&](const matrix& m, std::mt19937& random) {
    for (const int steps : {std::min(m.cols(), m.rows()), below(random, m.cols() + 1)}) {
      if (steps < rank(m)) continue;
      matrix solved = m;
      std::vector<int> c = identity_order(m.cols());
      std::vector<int> r = identity_order(m.rows());
      const int d = solved.solve(c, r, steps);
      column_choice choice = choice_of(m);
      const std::vector<int> free =
          free_columns(m.cols(), steps, [&](int j) { return choice.choose(j); });
      ASSERT_EQ(free, std::vector<int>(c.end() - d, c.end()));
      exchanged += std::is_sorted(free.begin(), free.end()) ? 0 : 1;
      // And the rows are the same, but for their order.
      for (int i = 0; d > 0 && i < choice.rank(); ++i) {
        const auto k = std::find(c.begin(), c.end() - d, choice.pivot(i)) - c.begin();
        for (const int j : free) ASSERT_EQ(choice[i][j], solved[r[k]][j]);
      }
    }
  });
  EXPECT_GT(exchanged, 100);
}

TEST(FreeColumns, AreAllColumnsInTheirOrderWhenThereIsNoStep) {
  EXPECT_EQ(free_columns(3, 0, [](int) { return true; }), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(free_columns(0, 0, [](int) { return true; }), std::vector<int>());
}

TEST(FreeColumns, AreAskedForOnce) {
  std::vector<int> asked;
  free_columns(5, 5, [&](int j) {
    asked.push_back(j);
    return j % 2 == 0;
  });
  EXPECT_EQ(asked, (std::vector<int>{0, 1, 4, 2, 3}));
}

}  // namespace
}  // namespace zep::tests
