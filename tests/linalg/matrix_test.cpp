// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/matrix.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/linalg/matrix_of.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

using order = std::vector<int>;

// Outcome of `solve` from the identity orders.
struct solution {
  int free_unknowns;
  order c;
  order r;
};

solution solve(matrix& m) {
  order c = identity_order(m.cols());
  order r = identity_order(m.rows());
  const int free_unknowns = m.solve(c, r);
  return {free_unknowns, c, r};
}

TEST(Matrix, TakesColumnsFirstAndIsZero) {
  const matrix m(3, 2);
  EXPECT_EQ(m.cols(), 3);
  EXPECT_EQ(m.rows(), 2);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(m[i].size(), 3U);
    for (const Fp8 x : m[i]) EXPECT_EQ(x, 0);
  }
}

TEST(Matrix, NegativeCountsAreZero) {
  const matrix m(-1, -5);
  EXPECT_EQ(m.cols(), 0);
  EXPECT_EQ(m.rows(), 0);
}

TEST(Matrix, HoldsItsRowsOneBehindTheOther) {
  const matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}});
  EXPECT_EQ(m[1].data(), m[0].data() + 3);
  EXPECT_EQ(m[1].size(), 3U);
}

TEST(Matrix, RowsAreViewsThatChangeIt) {
  matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}});
  const row_view second = m[1];
  second[2] = Fp8(9);
  EXPECT_EQ(m, matrix_of({{1, 2, 3}, {4, 5, 9}}));
}

TEST(Matrix, RowsOfAMatrixWithoutColumnsAreEmpty) {
  const matrix m(0, 2);
  EXPECT_TRUE(m[0].empty());
  EXPECT_TRUE(m[1].empty());
}

TEST(MatrixDeathTest, HasNoOtherRowsInTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "checked in the paranoid build";
  matrix m(3, 2);
  const matrix& fixed = m;
  EXPECT_DEATH(m[2][0] = Fp8(1), "a row is one of the matrix");
  EXPECT_DEATH(m[-1][0] = Fp8(1), "a row is one of the matrix");
  EXPECT_DEATH(static_cast<void>(fixed[2]), "a row is one of the matrix");
}

TEST(Matrix, CopiesAreDeep) {
  const matrix source = matrix_of({{1, 2, 3}, {4, 5, 6}});
  matrix copy = source;
  EXPECT_EQ(copy, source);
  copy[1][2] = Fp8(9);
  EXPECT_EQ(source[1][2], 6);
  EXPECT_FALSE(copy == source);
  matrix assigned(1, 1);
  assigned = source;
  EXPECT_EQ(assigned, source);
  assigned[0][0] = Fp8(9);
  EXPECT_EQ(source[0][0], 1);
}

TEST(Matrix, EqualityComparesShapes) {
  EXPECT_FALSE(matrix(2, 3) == matrix(3, 2));
  EXPECT_TRUE(matrix(2, 3) == matrix(2, 3));
}

TEST(Matrix, IdentityOrderCountsUp) {
  EXPECT_EQ(identity_order(4), (order{0, 1, 2, 3}));
  EXPECT_EQ(identity_order(0), order{});
}

TEST(Matrix, SolveOfAZeroMatrixLeavesEveryUnknownFree) {
  const ring_in_force ring;
  for (const int rows : {0, 1, 2, 5}) {
    matrix m(3, rows);
    const solution s = solve(m);
    EXPECT_EQ(s.free_unknowns, 3);
    EXPECT_EQ(m, matrix(3, rows));
    EXPECT_EQ(s.r, identity_order(rows));
  }
}

TEST(Matrix, SolveDefersTheColumnsOfAZeroMatrixOneAfterTheOther) {
  const ring_in_force ring;
  matrix m(3, 1);
  EXPECT_EQ(solve(m).c, (order{1, 2, 0}));
}

TEST(Matrix, SolveReturnsZeroOnAnInvertibleSquareMatrix) {
  const ring_in_force ring;
  matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}, {7, 8, 10}});
  EXPECT_EQ(solve(m).free_unknowns, 0);
  matrix tall = matrix_of({{0, 0}, {1, 2}, {1, 3}});
  EXPECT_EQ(solve(tall).free_unknowns, 0);
}

TEST(Matrix, SolveLeavesTheLastPivotAsItIsWhenNothingIsFree) {
  const ring_in_force ring;
  matrix m = matrix_of({{2, 4}, {3, 1}});
  EXPECT_EQ(solve(m).free_unknowns, 0);
  EXPECT_EQ(m, matrix_of({{1, 2}, {0, 96}}));
}

TEST(Matrix, SolveNamesTheFreeUnknownOfATwoByThreeSystemLast) {
  const ring_in_force ring;
  matrix m = matrix_of({{1, 0, 5}, {0, 1, 7}});
  solution s = solve(m);
  EXPECT_EQ(s.free_unknowns, 1);
  EXPECT_EQ(s.c, (order{0, 1, 2}));
  matrix deferring = matrix_of({{0, 2, 4}, {0, 1, 5}});
  s = solve(deferring);
  EXPECT_EQ(s.free_unknowns, 1);
  EXPECT_EQ(s.c, (order{2, 1, 0}));
  EXPECT_EQ(deferring[s.r[0]][2], 1);
  EXPECT_EQ(deferring[s.r[0]][0], 0);
}

TEST(Matrix, SolveGivesReducedRowEchelonForm) {
  const ring_in_force ring;
  matrix m = matrix_of({{0, 2, 4, 6}, {1, 1, 1, 1}});
  const solution s = solve(m);
  EXPECT_EQ(s.free_unknowns, 2);
  EXPECT_EQ(s.c, (order{0, 1, 2, 3}));
  EXPECT_EQ(s.r, (order{1, 0}));
  EXPECT_EQ(m, matrix_of({{0, 1, 2, 3}, {1, 0, 100, 99}}));
}

TEST(Matrix, SolveTakesTheFirstRowWithAPivot) {
  const ring_in_force ring;
  matrix m = matrix_of({{0, 1, 0}, {0, 0, 1}, {5, 0, 0}, {6, 0, 0}});
  EXPECT_EQ(solve(m).r[0], 2);
}

TEST(Matrix, SolveWorksThroughTheOrdersItIsGiven) {
  const ring_in_force ring;
  matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}});
  order c = {2, 0, 1};
  order r = {1, 0};
  EXPECT_EQ(m.solve(c, r), 1);
  EXPECT_EQ(c, (order{2, 0, 1}));
  EXPECT_EQ(r, (order{1, 0}));
  EXPECT_EQ(m[1][2], 1);
  EXPECT_EQ(m[0][2], 0);
  EXPECT_EQ(m[0][0], 1);
  EXPECT_EQ(m[1][0], 0);
}

TEST(Matrix, SolveOfNoColumnsHasNothingFree) {
  const ring_in_force ring;
  matrix m(0, 3);
  EXPECT_EQ(solve(m).free_unknowns, 0);
}

TEST(Matrix, RankLeavesTheMatrix) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2, 3}, {2, 4, 6}, {1, 1, 1}});
  EXPECT_EQ(rank(m), 2);
  EXPECT_EQ(m[1][0], 2);
  EXPECT_EQ(rank(matrix(3, 3)), 0);
  EXPECT_EQ(rank(matrix_of({{1, 0}, {0, 1}, {1, 1}})), 2);
}

TEST(Matrix, PrintsEntriesCentredWithABlankLineBetweenRows) {
  const ring_in_force ring;
  EXPECT_EQ(text_of(matrix_of({{1, 10}, {100, 5}})),
            "[  1  10 ]\n"
            "[        ]\n"
            "[ -1   5 ]\n");
}

TEST(Matrix, PrintsTheOddBlankToTheLeft) {
  const ring_in_force ring;
  EXPECT_EQ(text_of(matrix_of({{51}, {7}, {10}})),
            "[ -50 ]\n"
            "[     ]\n"
            "[  7  ]\n"
            "[     ]\n"
            "[  10 ]\n");
}

TEST(Matrix, EveryColumnHasItsOwnWidthAlsoInBlankLines) {
  const ring_in_force ring;
  EXPECT_EQ(text_of(matrix_of({{1, 51, 100}, {2, 3, 4}})),
            "[ 1  -50  -1 ]\n"
            "[            ]\n"
            "[ 2   3    4 ]\n");
}

TEST(Matrix, PrintsNoBlankLineAfterTheLastRow) {
  const ring_in_force ring;
  EXPECT_EQ(text_of(matrix_of({{0, 100, 3}})), "[ 0  -1  3 ]\n");
  EXPECT_EQ(text_of(matrix(2, 0)), "");
}

TEST(Matrix, PrintsEmptyBracketsWithoutColumns) {
  EXPECT_EQ(text_of(matrix(0, 2)),
            "[  ]\n"
            "[  ]\n"
            "[  ]\n");
}

}  // namespace
}  // namespace zep::tests
