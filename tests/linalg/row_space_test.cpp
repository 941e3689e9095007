// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/row_space.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "tests/draw.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Rows of a matrix of the given rank at most, as sums of few rows.
matrix rows_of_low_rank(int cols, int rows, int bound, std::mt19937& random) {
  matrix m(cols, rows);
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < cols; ++j) {
      if (i < bound) m[i][j] = below(random, Fp8::prime);
    }
    for (int k = 0; i >= bound && k < bound; ++k) {
      const Fp8 c(below(random, Fp8::prime));
      for (int j = 0; j < cols; ++j) m[i][j] += c * m[k][j];
    }
  }
  return m;
}

matrix first_rows(const matrix& m, int rows) {
  matrix part(m.cols(), rows);
  for (int i = 0; i < rows; ++i) std::copy(m[i].begin(), m[i].end(), part[i].begin());
  return part;
}

TEST(RowSpace, TellsTheRowsThatRaiseTheRank) {
  std::mt19937 random(1);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 40; ++round) {
      const matrix m = rows_of_low_rank(1 + below(random, 9), 12, below(random, 8), random);
      row_space space(m.cols());
      for (int i = 0; i < m.rows(); ++i) {
        const bool raises = rank(first_rows(m, i + 1)) > rank(first_rows(m, i));
        EXPECT_EQ(space.add({m[i].begin(), m[i].end()}), raises);
        EXPECT_EQ(space.rank(), rank(first_rows(m, i + 1)));
      }
    }
  }
}

TEST(RowSpace, KeepsABasisOfWhatItWasGiven) {
  std::mt19937 random(2);
  const ring_in_force ring(101);
  const matrix m = rows_of_low_rank(10, 15, 4, random);
  row_space space(10);
  for (int i = 0; i < 15; ++i) space.add({m[i].begin(), m[i].end()});
  const matrix basis = space.basis();
  EXPECT_EQ(basis.rows(), rank(m));
  matrix both(10, 15 + basis.rows());
  for (int i = 0; i < 15; ++i) std::copy(m[i].begin(), m[i].end(), both[i].begin());
  for (int i = 0; i < basis.rows(); ++i) {
    std::copy(basis[i].begin(), basis[i].end(), both[15 + i].begin());
  }
  EXPECT_EQ(rank(basis), basis.rows());
  EXPECT_EQ(rank(both), rank(m));
}

TEST(RowSpace, HasRowsWithOneAtTheirPivotAndZeroAtThoseBefore) {
  std::mt19937 random(4);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    const matrix m = rows_of_low_rank(12, 15, 6, random);
    row_space space(12);
    for (int i = 0; i < 15; ++i) space.add({m[i].begin(), m[i].end()});
    const matrix basis = space.basis();
    ASSERT_EQ(space.pivots().size(), static_cast<std::size_t>(basis.rows()));
    for (int i = 0; i < basis.rows(); ++i) {
      for (int j = 0; j <= i; ++j) {
        const auto pivot = static_cast<int>(space.pivots()[static_cast<std::size_t>(j)]);
        EXPECT_EQ(basis[i][pivot], j == i ? 1 : 0);
      }
    }
  }
}

TEST(RowSpace, OfNothingIsZero) {
  const ring_in_force ring(101);
  row_space space(3);
  EXPECT_EQ(space.basis(), matrix(3, 0));
  EXPECT_FALSE(space.add(row(3)));
  EXPECT_EQ(space.rank(), 0);
  row_space narrow(0);
  EXPECT_FALSE(narrow.add({}));
}

// What `min_Ix` relies on: leaving out dependent rows changes neither result nor column order, as
// long as the steps are counted as if they were there.
TEST(RowSpace, StandsForAllRowsInSolve) {
  std::mt19937 random(3);
  int different_without_steps = 0;
  for (const int p : {2, 3, 101}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 300; ++round) {
      matrix m =
          rows_of_low_rank(1 + below(random, 7), 1 + below(random, 9), below(random, 6), random);
      row_space space(m.cols());
      for (int i = 0; i < m.rows(); ++i) space.add({m[i].begin(), m[i].end()});
      matrix few = space.basis();
      matrix fewer_steps = few;

      std::vector<int> c = identity_order(m.cols());
      std::vector<int> r = identity_order(m.rows());
      const int d = m.solve(c, r);
      std::vector<int> few_c = identity_order(m.cols());
      std::vector<int> few_r = identity_order(few.rows());
      EXPECT_EQ(few.solve(few_c, few_r, std::min(m.cols(), m.rows())), d);
      if (d > 0) {
        EXPECT_EQ(few_c, c);
      }
      std::vector<int> plain_c = identity_order(m.cols());
      fewer_steps.solve(plain_c, few_r);
      if (plain_c != c) ++different_without_steps;
    }
  }
  EXPECT_GT(different_without_steps, 10);
}

}  // namespace
}  // namespace zep::tests
