// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "arith/ordering.h"
#include "reference/polynomial_rows.h"
#include "tests/draw.h"
#include "tests/points/dense_rows.h"
#include "tests/points/random_rows.h"

namespace zep::tests {
namespace {

// The same in plain words, on rows with all their entries.
struct dense_result {
  std::vector<int> pivots;
  int reductions = 0;
};

int pivot_column(const dense_row& row) {
  int column = -1;
  for (int j = 0; j < static_cast<int>(row.size()); ++j) {
    if (sign(row[j]) == 0) continue;
    if (column < 0 || row[j].term(0) > row[column].term(0)) column = j;
  }
  return column;
}

// The first row before row i with the same pivot, or -1.
int earlier_row(const dense_matrix& A, const std::vector<int>& pivots, int i, int column) {
  for (int k = 0; k < i; ++k) {
    if (pivots[k] != column) continue;
    if (A[k][column].term(0) == A[i][column].term(0)) return k;
  }
  return -1;
}

dense_result dense_interreduce(dense_matrix& A) {
  dense_result result;
  for (int i = 0; i < static_cast<int>(A.size()); ++i) {
    dense_row& row = A[i];
    int column = pivot_column(row);
    int k = -1;
    while (column >= 0 && (k = earlier_row(A, result.pivots, i, column)) >= 0) {
      const Fp8 c = row[column].coef(0);
      for (std::size_t j = 0; j < row.size(); ++j) row[j] -= A[k][j] * c;
      ++result.reductions;
      column = pivot_column(row);
    }
    if (column >= 0) {
      const Fp8 inverse = Fp8(1) / row[column].coef(0);
      for (polynomial& f : row) f *= inverse;
    }
    result.pivots.push_back(pivot_column(row));
  }
  return result;
}

// Row degrees and column degrees add up, as in a resolution.
dense_matrix random_matrix(kind k, std::mt19937& random) {
  const std::vector<int> column_degree = random_column_degrees(random);
  dense_matrix A(1 + below(random, 12));
  for (dense_row& row : A) row = random_row(k, below(random, 3), column_degree, random);
  return A;
}

TEST(InterreduceProperty, GivesWhatTheRuleGivesOnDenseRows) {
  int reductions = 0;
  for_random_rings([&](kind k, std::mt19937& random) {
    dense_matrix dense = random_matrix(k, random);
    polynomial_matrix A = rows_of(dense);
    const dense_result expected = dense_interreduce(dense);
    ASSERT_EQ(interreduce(A), expected.pivots);
    ASSERT_EQ(entries_of(A), dense);
    for (const polynomial_row& row : A) expect_in_order(row);
    reductions += expected.reductions;
  });
  EXPECT_GT(reductions, 1000);
}

TEST(InterreduceProperty, LeavesAnInterreducedMatrixAsItIs) {
  for_random_rings([](kind k, std::mt19937& random) {
    polynomial_matrix A = rows_of(random_matrix(k, random));
    const std::vector<int> pivots = interreduce(A);
    const dense_matrix once = entries_of(A);
    ASSERT_EQ(interreduce(A), pivots);
    ASSERT_EQ(entries_of(A), once);
  });
}

TEST(DifferenceProperty, SubtractsAsPolynomialsDo) {
  for_random_rings([](kind k, std::mt19937& random) {
    const std::vector<int> column_degree = random_column_degrees(random);
    const int degree = below(random, 3);
    const Fp8 c(below(random, Fp8::prime));
    const dense_row b = random_row(k, degree, column_degree, random);
    dense_row a = random_row(k, degree, column_degree, random);
    const polynomial_row row = difference(polynomial_row(a), c, polynomial_row(b));
    for (std::size_t j = 0; j < b.size(); ++j) a[j] -= b[j] * c;
    ASSERT_NO_FATAL_FAILURE(expect_row(row, a));
  });
}

}  // namespace
}  // namespace zep::tests
