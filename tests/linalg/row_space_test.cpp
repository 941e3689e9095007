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

std::vector<row> rows_of(const matrix& m) {
  std::vector<row> rows;
  for (int i = 0; i < m.rows(); ++i) rows.emplace_back(m[i].begin(), m[i].end());
  return rows;
}

// The rows, each with its unit row as tail.
std::vector<row> with_unit_tails(const matrix& m) {
  std::vector<row> rows = rows_of(m);
  const std::size_t n = rows.size();
  for (std::size_t i = 0; i < n; ++i) {
    rows[i].resize(rows[i].size() + n);
    rows[i][rows[i].size() - n + i] = 1;
  }
  return rows;
}

// The row is the combination of the rows of m that its tail tells, and fault times more.
void expect_combination_told_by_tail(const_row_view r, const matrix& m, const row& fault) {
  row sum = fault;
  for (int i = 0; i < m.rows(); ++i) {
    for (int j = 0; j < m.cols(); ++j) sum[j] += r[m.cols() + i] * m[i][j];
  }
  EXPECT_TRUE(std::equal(sum.begin(), sum.end(), r.begin()));
}

struct large_matrix {
  int p;
  int cols;
  int rows;
  int rank_bound;
};

// Ranks on either side of the sizes at which rows are put together.
const std::vector<large_matrix> large_matrices = {
    {2, 90, 120, 70}, {3, 31, 40, 31}, {101, 33, 40, 32}, {101, 70, 90, 65}, {251, 350, 400, 340}};

TEST(RowSpace, TakesManyRowsAtOnceAsOneByOne) {
  std::mt19937 random(5);
  for (const auto& [p, cols, rows, bound] : large_matrices) {
    const ring_in_force ring(p);
    const matrix m = rows_of_low_rank(cols, rows, bound, random);
    row_space one_by_one(cols);
    std::vector<bool> raises;
    for (row& r : rows_of(m)) raises.push_back(one_by_one.add(std::move(r)));
    for (const int block : {7, 64, rows}) {
      row_space space(cols);
      std::vector<bool> independent;
      const std::vector<row> all = rows_of(m);
      for (int i = 0; i < rows; i += block) {
        const std::vector<bool> found =
            space.add_rows({all.begin() + i, all.begin() + std::min(i + block, rows)});
        independent.insert(independent.end(), found.begin(), found.end());
      }
      EXPECT_EQ(independent, raises);
      EXPECT_EQ(space.pivots(), one_by_one.pivots());
      EXPECT_EQ(space.basis(), one_by_one.basis());
      for (int j = 0; j < space.rank(); ++j) EXPECT_EQ(space.lead(j), one_by_one.lead(j));
    }
    EXPECT_EQ(one_by_one.rank(), rank(m));
  }
}

TEST(RowSpace, LetsTailsTellHowRowsCame) {
  std::mt19937 random(6);
  for (const auto& [p, cols, rows, bound] : large_matrices) {
    const ring_in_force ring(p);
    const matrix m = rows_of_low_rank(cols, rows, bound, random);
    row_space space(cols, rows);
    space.add_rows(with_unit_tails(m));
    for (int j = 0; j < space.rank(); ++j) {
      expect_combination_told_by_tail(space[j], m, row(static_cast<std::size_t>(cols)));
    }
  }
}

TEST(RowSpace, ReducesRowsToZeroAtAllPivots) {
  std::mt19937 random(7);
  for (const auto& [p, cols, rows, bound] : large_matrices) {
    const ring_in_force ring(p);
    const matrix m = rows_of_low_rank(cols, rows, bound, random);
    row_space space(cols, rows);
    space.add_rows(with_unit_tails(m));
    row r(static_cast<std::size_t>(cols) + static_cast<std::size_t>(rows));
    for (int j = 0; j < cols; ++j) r[j] = below(random, p);
    const row before(r.begin(), r.begin() + cols);
    const std::vector<row_view> only = {r};
    space.reduce(only);
    for (const std::size_t pivot : space.pivots()) EXPECT_EQ(r[pivot], 0);
    expect_combination_told_by_tail(r, m, before);
  }
}

TEST(RowSpace, HasAReducedEchelonForm) {
  std::mt19937 random(8);
  for (const auto& [p, cols, rows, bound] : large_matrices) {
    const ring_in_force ring(p);
    const matrix m = rows_of_low_rank(cols, rows, bound, random);
    row_space space(cols, rows);
    space.add_rows(with_unit_tails(m));
    const std::vector<row> reduced = space.reduced();
    ASSERT_EQ(std::ssize(reduced), space.rank());
    for (int i = 0; i < space.rank(); ++i) {
      expect_combination_told_by_tail(reduced[i], m, row(static_cast<std::size_t>(cols)));
      for (int j = 0; j < space.rank(); ++j) {
        EXPECT_EQ(reduced[i][space.pivots()[j]], i == j ? 1 : 0);
      }
    }
  }
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
