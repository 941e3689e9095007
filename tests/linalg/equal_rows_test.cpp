// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/equal_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>
#include <utility>

#include "tests/draw.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

using pair_of_rows = std::optional<std::pair<int, int>>;

matrix column_of(std::initializer_list<int> entries) {
  matrix m(1, static_cast<int>(entries.size()));
  int i = 0;
  for (const int entry : entries) m[i++][0] = Fp8(entry);
  return m;
}

pair_of_rows first_pair(const matrix& m) { return equal_rows(m).first_pair(); }

bool same_row(const matrix& m, int i, int k) {
  return std::equal(m[i].begin(), m[i].end(), m[k].begin());
}

pair_of_rows first_pair_of_all(const matrix& m) {
  for (int i = 0; i < m.rows(); ++i) {
    for (int k = i + 1; k < m.rows(); ++k) {
      if (same_row(m, i, k)) return std::pair(i, k);
    }
  }
  return std::nullopt;
}

void randomize(std::mt19937& random, matrix& m, int i, int values) {
  for (int j = 0; j < m.cols(); ++j) m[i][j] = Fp8(below(random, values));
}

TEST(EqualRows, DifferentRowsMakeNoPair) {
  EXPECT_EQ(first_pair(column_of({1, 2, 3})), std::nullopt);
  EXPECT_EQ(first_pair(matrix(3, 0)), std::nullopt);
  EXPECT_EQ(first_pair(matrix(3, 1)), std::nullopt);
}

TEST(EqualRows, FirstPairHasTheSmallestFirstRowThenTheSmallestSecond) {
  EXPECT_EQ(first_pair(column_of({7, 1, 2, 2, 1, 1})), std::pair(1, 4));
  EXPECT_EQ(first_pair(column_of({1, 2, 2, 1})), std::pair(0, 3));
  EXPECT_EQ(first_pair(column_of({5, 5, 5})), std::pair(0, 1));
}

TEST(EqualRows, ComparesWholeRows) {
  matrix m(3, 3);
  m[0][2] = Fp8(1);
  m[1][2] = Fp8(2);
  m[2][0] = Fp8(1);
  EXPECT_EQ(first_pair(m), std::nullopt);
  m[1][2] = Fp8(1);
  EXPECT_EQ(first_pair(m), std::pair(0, 1));
}

TEST(EqualRows, RowsWithoutColumnsAreEqual) {
  EXPECT_EQ(first_pair(matrix(0, 3)), std::pair(0, 1));
}

TEST(EqualRows, FollowsAChangedRow) {
  matrix m = column_of({1, 2, 1});
  equal_rows equal(m);
  EXPECT_EQ(equal.first_pair(), std::pair(0, 2));
  std::string before = equal_rows::contents(m, 2);
  m[2][0] = Fp8(3);
  equal.row_changed(m, 2, before);
  EXPECT_EQ(equal.first_pair(), std::nullopt);
  before = equal_rows::contents(m, 1);
  m[1][0] = Fp8(3);
  equal.row_changed(m, 1, before);
  EXPECT_EQ(equal.first_pair(), std::pair(1, 2));
}

TEST(EqualRows, AChangeToTheSameContentsChangesNothing) {
  const matrix m = column_of({1, 2, 1});
  equal_rows equal(m);
  equal.row_changed(m, 0, equal_rows::contents(m, 0));
  EXPECT_EQ(equal.first_pair(), std::pair(0, 2));
}

TEST(EqualRows, ContentsTellRowsApart) {
  matrix m(2, 2);
  m[0][1] = Fp8(200);
  EXPECT_EQ(equal_rows::contents(m, 0).size(), 2U);
  EXPECT_NE(equal_rows::contents(m, 0), equal_rows::contents(m, 1));
  m[1][1] = Fp8(200);
  EXPECT_EQ(equal_rows::contents(m, 0), equal_rows::contents(m, 1));
}

TEST(EqualRows, AgreesWithADoubleLoopWhileRowsChange) {
  std::mt19937 random(15);
  for (const int values : {2, 3, 5}) {
    for (int round = 0; round < 30; ++round) {
      matrix m(1 + below(random, 3), 1 + below(random, 12));
      for (int i = 0; i < m.rows(); ++i) randomize(random, m, i, values);
      equal_rows equal(m);
      for (int step = 0; step < 40; ++step) {
        ASSERT_EQ(equal.first_pair(), first_pair_of_all(m));
        const int i = below(random, m.rows());
        const std::string before = equal_rows::contents(m, i);
        randomize(random, m, i, values);
        equal.row_changed(m, i, before);
      }
    }
  }
}

TEST(EqualRows, RemovingTheFirstPairAgainAndAgainEndsWithDifferentRows) {
  std::mt19937 random(16);
  matrix m(3, 60);
  for (int i = 0; i < m.rows(); ++i) randomize(random, m, i, 2);
  equal_rows equal(m);
  int changes = 0;
  for (auto pair = equal.first_pair(); pair && changes < 10000; pair = equal.first_pair()) {
    ASSERT_EQ(pair, first_pair_of_all(m));
    const std::string before = equal_rows::contents(m, pair->second);
    randomize(random, m, pair->second, 6);
    equal.row_changed(m, pair->second, before);
    ++changes;
  }
  EXPECT_EQ(first_pair_of_all(m), std::nullopt);
}

}  // namespace
}  // namespace zep::tests
