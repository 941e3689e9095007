// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/matrices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/draw.h"
#include "tests/linalg/matrix_of.h"
#include "tests/linalg/random_matrices.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

int minor_of(const matrix& m, const permutation& col, const permutation& rr) {
  return minor(m, col, rr).value();
}

TEST(Matrices, InitSetsEveryEntryToZero) {
  matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}});
  init(m);
  EXPECT_EQ(m, matrix(3, 2));
}

TEST(Matrices, MinorOfOneEntryIsTheEntry) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2}, {3, 0}});
  EXPECT_EQ(minor_of(m, {1}, {0}), 2);
  EXPECT_EQ(minor_of(m, {0}, {1}), 3);
  EXPECT_EQ(minor_of(m, {1}, {1}), 0);
}

TEST(Matrices, MinorOfNothingIsOne) {
  const ring_in_force ring;
  EXPECT_EQ(minor_of(matrix(3, 3), {}, {}), 1);
}

TEST(Matrices, MinorWithAZeroColumnIsZero) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 0, 2}, {3, 0, 4}, {5, 0, 7}});
  EXPECT_EQ(minor_of(m, {0, 1, 2}, {0, 1, 2}), 0);
  EXPECT_EQ(minor_of(m, {1, 0}, {0, 2}), 0);
}

TEST(Matrices, MinorOfARankDeficientSelectionIsZero) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2, 3}, {2, 4, 6}, {1, 1, 1}});
  EXPECT_EQ(minor_of(m, {0, 1, 2}, {0, 1, 2}), 0);
  EXPECT_EQ(minor_of(m, {0, 1}, {2, 2}), 0);
}

TEST(Matrices, MinorChangesSignWhenTwoRowsOrColumnsAreExchanged) {
  const ring_in_force ring;
  const matrix m = matrix_of({{1, 2, 3}, {4, 5, 6}, {7, 8, 10}});
  EXPECT_EQ(minor_of(m, {0, 1, 2}, {0, 1, 2}), 98);
  EXPECT_EQ(minor_of(m, {0, 1, 2}, {1, 0, 2}), 3);
  EXPECT_EQ(minor_of(m, {2, 1, 0}, {0, 1, 2}), 3);
  EXPECT_EQ(minor_of(m, {1, 2, 0}, {0, 1, 2}), 98);
}

TEST(Matrices, MinorExchangesRowsForAPivot) {
  const ring_in_force ring;
  EXPECT_EQ(minor_of(matrix_of({{0, 1}, {1, 0}}), {0, 1}, {0, 1}), 100);
  EXPECT_EQ(minor_of(matrix_of({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}), {0, 1, 2}, {0, 1, 2}), 1);
  EXPECT_EQ(minor_of(matrix_of({{1, 1, 0}, {1, 1, 1}, {0, 1, 0}}), {0, 1, 2}, {0, 1, 2}), 100);
}

TEST(Matrices, MinorChangesNeitherMatrixNorLists) {
  const ring_in_force ring;
  const matrix m = matrix_of({{0, 2}, {3, 4}});
  const permutation col = {1, 0};
  const permutation rr = {0, 1};
  EXPECT_EQ(minor_of(m, col, rr), 6);
  EXPECT_EQ(m, matrix_of({{0, 2}, {3, 4}}));
  EXPECT_EQ(col, (permutation{1, 0}));
  EXPECT_EQ(rr, (permutation{0, 1}));
}

TEST(Matrices, ReadsRowByRow) {
  const ring_in_force ring;
  std::istringstream in("1 -1 3/2\n4 5 6 7");
  matrix m(3, 2);
  EXPECT_TRUE(in >> m);
  EXPECT_EQ(m, matrix_of({{1, 100, 52}, {4, 5, 6}}));
  std::string rest;
  in >> rest;
  EXPECT_EQ(rest, "7");
}

TEST(Matrices, ReadingStopsAtAMalformedNumber) {
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

TEST(Matrices, ReadingTooFewNumbersMeetsTheEnd) {
  const ring_in_force ring;
  std::istringstream in("1 2 3");
  matrix m(2, 2);
  EXPECT_FALSE(in >> m);
  EXPECT_TRUE(in.eof());
}

// Expands along the first row of the selection.
int plain_determinant(const matrix& m, const permutation& col, const permutation& rr) {
  if (col.empty()) return 1;
  const permutation rows(rr.begin() + 1, rr.end());
  int sum = 0;
  for (std::size_t j = 0; j < col.size(); ++j) {
    permutation others = col;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(j));
    const int product = m[rr[0]][col[j]].value() * plain_determinant(m, others, rows) % Fp8::prime;
    sum += j % 2 == 0 ? product : Fp8::prime - product;
  }
  return sum % Fp8::prime;
}

TEST(Matrices, MinorIsTheExpandedDeterminant) {
  std::mt19937 random(17);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 150; ++round) {
      matrix m = random_matrix(random, 7, 6, round % 8);
      if (round % 3 == 0) make_dependent(random, m);
      for (int n = 0; n <= 5; ++n) {
        permutation col = random_order(random, 7);
        permutation rr = random_order(random, 6);
        col.resize(static_cast<std::size_t>(n));
        rr.resize(static_cast<std::size_t>(n));
        ASSERT_EQ(minor(m, col, rr), plain_determinant(m, col, rr)) << m;
      }
    }
  }
}

// -1 for an odd permutation.
int sign_of(permutation list) {
  int sign = 1;
  for (int i = 0; i < static_cast<int>(list.size()); ++i) {
    while (at(list, i) != i) {
      std::swap(at(list, i), at(list, at(list, i)));
      sign = -sign;
    }
  }
  return sign;
}

// Products of triangular matrices with exchanged rows, where the determinant is known.
TEST(Matrices, MinorOfALargeMatrixIsTheSignedProductOfThePivots) {
  std::mt19937 random(19);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (const int n : {15, 16, 17, 33, 70}) {
      const permutation rr = random_order(random, n);
      Fp8 expected(sign_of(rr) == 1 ? 1 : p - 1);
      matrix upper = random_matrix(random, n, n, 3);
      for (int i = 0; i < n; ++i) {
        upper[i][i] = Fp8(1 + below(random, p - 1));
        expected *= upper[i][i];
      }
      matrix m(n, n);
      for (int i = 0; i < n; ++i) {
        for (int k = 0; k <= i; ++k) {
          const Fp8 factor(k == i ? 1 : below(random, p));
          for (int j = k; j < n; ++j) m[i][j] += factor * upper[k][j];
        }
      }
      ASSERT_EQ(minor(m, identity_order(n), rr), expected) << "p = " << p << ", n = " << n;
    }
  }
}

TEST(Matrices, MinorIsAnElementInACompositeCharacteristic) {
  std::mt19937 random(18);
  for (const int p : {4, 6, 250}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 600; ++round) {
      matrix m = random_matrix(random, 1 + below(random, 9), 1 + below(random, 9), round % 10);
      if (round % 2 == 0) make_dependent(random, m);
      const int n = std::min(m.cols(), m.rows());
      const permutation c = random_order(random, m.cols());
      const permutation r = random_order(random, m.rows());
      ASSERT_LT(minor(m, std::span(c).first(n), std::span(r).first(n)).value(), Fp8::prime);
    }
  }
}

}  // namespace
}  // namespace zep::tests
