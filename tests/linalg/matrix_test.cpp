#include "linalg/matrix.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/linalg/matrix_of.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

using order = std::vector<int>;

int minor(const matrix& m, const order& col, const order& rr) { return m.minor(col, rr).value(); }

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
    EXPECT_EQ(m.row(i).size(), 3U);
    for (const Fp8 x : m.row(i)) EXPECT_EQ(x, 0);
  }
}

TEST(Matrix, NegativeCountsAreZero) {
  const matrix m(-1, -5);
  EXPECT_EQ(m.cols(), 0);
  EXPECT_EQ(m.rows(), 0);
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

TEST(Matrix, InitSetsEveryEntryToZero) {
  matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}});
  m.init();
  EXPECT_EQ(m, matrix(3, 2));
}

TEST(Matrix, IdentityOrderCountsUp) {
  EXPECT_EQ(identity_order(4), (order{0, 1, 2, 3}));
  EXPECT_EQ(identity_order(0), order{});
}

TEST(Matrix, MinorOfOneEntryIsTheEntry) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2}, {3, 0}});
  EXPECT_EQ(minor(m, {1}, {0}), 2);
  EXPECT_EQ(minor(m, {0}, {1}), 3);
  EXPECT_EQ(minor(m, {1}, {1}), 0);
}

TEST(Matrix, MinorOfNothingIsOne) {
  const ring_in_force ring;
  EXPECT_EQ(minor(matrix(3, 3), {}, {}), 1);
}

TEST(Matrix, MinorWithAZeroColumnIsZero) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 0, 2}, {3, 0, 4}, {5, 0, 7}});
  EXPECT_EQ(minor(m, {0, 1, 2}, {0, 1, 2}), 0);
  EXPECT_EQ(minor(m, {1, 0}, {0, 2}), 0);
}

TEST(Matrix, MinorOfARankDeficientSelectionIsZero) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2, 3}, {2, 4, 6}, {1, 1, 1}});
  EXPECT_EQ(minor(m, {0, 1, 2}, {0, 1, 2}), 0);
  EXPECT_EQ(minor(m, {0, 1}, {2, 2}), 0);
}

TEST(Matrix, MinorChangesSignWhenTwoRowsOrColumnsAreExchanged) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}, {7, 8, 10}});
  EXPECT_EQ(minor(m, {0, 1, 2}, {0, 1, 2}), 98);
  EXPECT_EQ(minor(m, {0, 1, 2}, {1, 0, 2}), 3);
  EXPECT_EQ(minor(m, {2, 1, 0}, {0, 1, 2}), 3);
  EXPECT_EQ(minor(m, {1, 2, 0}, {0, 1, 2}), 98);
}

TEST(Matrix, MinorExchangesRowsForAPivot) {
  const ring_in_force ring;
  EXPECT_EQ(minor(matrix_of({{0, 1}, {1, 0}}), {0, 1}, {0, 1}), 100);
  EXPECT_EQ(minor(matrix_of({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}), {0, 1, 2}, {0, 1, 2}), 1);
  EXPECT_EQ(minor(matrix_of({{1, 1, 0}, {1, 1, 1}, {0, 1, 0}}), {0, 1, 2}, {0, 1, 2}), 100);
}

TEST(Matrix, MinorChangesNeitherMatrixNorLists) {
  const ring_in_force ring;
  const matrix m = matrix_of({{0, 2}, {3, 4}});
  const order col = {1, 0};
  const order rr = {0, 1};
  EXPECT_EQ(minor(m, col, rr), 6);
  EXPECT_EQ(m, matrix_of({{0, 2}, {3, 4}}));
  EXPECT_EQ(col, (order{1, 0}));
  EXPECT_EQ(rr, (order{0, 1}));
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

TEST(Matrix, ReadsRowByRow) {
  const ring_in_force ring;
  std::istringstream in("1 -1 3/2\n4 5 6 7");
  matrix m(3, 2);
  EXPECT_TRUE(in >> m);
  EXPECT_EQ(m, matrix_of({{1, 100, 52}, {4, 5, 6}}));
  std::string rest;
  in >> rest;
  EXPECT_EQ(rest, "7");
}

TEST(Matrix, ReadingStopsAtAMalformedNumber) {
  const ring_in_force ring;
  std::istringstream in("1 2 x 4");
  matrix m = matrix_of({{9, 9}, {9, 9}});
  EXPECT_FALSE(in >> m);
  EXPECT_FALSE(in.eof());
  EXPECT_EQ(m, matrix_of({{1, 2}, {0, 0}}));
  in.clear();
  std::string rest;
  in >> rest;
  EXPECT_EQ(rest, "x");
}

TEST(Matrix, ReadingTooFewNumbersMeetsTheEnd) {
  const ring_in_force ring;
  std::istringstream in("1 2 3");
  matrix m(2, 2);
  EXPECT_FALSE(in >> m);
  EXPECT_TRUE(in.eof());
}

}  // namespace
}  // namespace zep::tests
