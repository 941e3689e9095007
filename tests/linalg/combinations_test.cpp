// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/combinations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "base/paranoid.h"
#include "linalg/kernels/bounds.h"
#include "tests/draw.h"
#include "tests/linalg/variant_in_force.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

using rows = std::vector<row>;

class Combinations : public variant_in_force {};
INSTANTIATE_TEST_SUITE_P(Every, Combinations, testing::ValuesIn(runnable_kernels()),
                         name_of_variant);

row random_row(std::mt19937& random, std::size_t n) {
  row result(n);
  for (Fp8& x : result) x = Fp8(below(random, Fp8::prime));
  return result;
}

rows random_rows(std::mt19937& random, std::size_t count, std::size_t n) {
  rows result;
  for (std::size_t i = 0; i < count; ++i) result.push_back(random_row(random, n));
  return result;
}

matrix random_matrix(std::mt19937& random, std::size_t r, std::size_t c) {
  matrix m(static_cast<int>(c), static_cast<int>(r));
  for (int i = 0; i < m.rows(); ++i) {
    for (int j = 0; j < m.cols(); ++j) m[i][j] = Fp8(below(random, Fp8::prime));
  }
  return m;
}

// Of each row the n elements from the given offset on.
template <class View>
std::vector<View> stretches(rows& all, std::size_t offset, std::size_t n) {
  std::vector<View> result;
  for (row& r : all) result.push_back(View(r).subspan(offset, n));
  return result;
}

// One row, one look-up after the other.
void add_plainly(rows& c, const matrix& a, const rows& b, std::size_t n, std::size_t offset_c,
                 std::size_t offset_b) {
  for (std::size_t i = 0; i < c.size(); ++i) {
    for (std::size_t k = 0; k < b.size(); ++k) {
      const Fp8 factor = a[static_cast<int>(i)][k];
      for (std::size_t x = 0; x < n; ++x) c[i][offset_c + x] += factor * b[k][offset_b + x];
    }
  }
}

// Rows are compared with what stands around them.
void expect_plain_sums(rows c, const matrix& a, rows b, std::size_t n, std::size_t offset_c = 0,
                       std::size_t offset_b = 0) {
  rows expected = c;
  add_plainly(expected, a, b, n, offset_c, offset_b);
  add_combinations(stretches<row_view>(c, offset_c, n), a,
                   stretches<const_row_view>(b, offset_b, n));
  ASSERT_TRUE(c == expected) << c.size() << " rows of " << n << ", " << b.size() << " summands";
}

// Coefficients that are mostly zero in some rows, all zero in others, and anything in the rest:
// each kind has its own way through.
matrix random_matrix_with_sparse_rows(std::mt19937& random, std::size_t r, std::size_t c) {
  matrix m = random_matrix(random, r, c);
  for (int i = 0; i < m.rows(); ++i) {
    const int kept = below(random, 4) == 0 ? m.cols() : m.cols() * below(random, 3) / 5;
    for (int j = 0; j < m.cols(); ++j) {
      if (below(random, m.cols()) >= kept) m[i][j] = 0;
    }
  }
  return m;
}

TEST_P(Combinations, AreThePlainSumsWhereManyCoefficientsAreZero) {
  std::mt19937 random(5);
  for (const int p : {2, 101, 251}) {
    const ring_in_force ring(p);
    for (const std::size_t k : {15U, 16U, 40U, 300U}) {
      for (const std::size_t m : {1U, 16U, 70U}) {
        expect_plain_sums(random_rows(random, m, 50), random_matrix_with_sparse_rows(random, m, k),
                          random_rows(random, k, 50), 50);
      }
    }
  }
}

TEST_P(Combinations, AreThePlainSumsAroundTheSizesOfATile) {
  std::mt19937 random(1);
  for (const int p : {2, 3, 101, 128, 250, 251}) {
    const ring_in_force ring(p);
    for (const std::size_t m : {0U, 1U, 3U, 15U, 16U, 17U, 19U, 21U}) {
      for (const std::size_t k : {0U, 1U, 2U, 15U, 16U, 17U, 18U}) {
        for (const std::size_t n : {0U, 1U, 15U, 16U, 17U, 33U}) {
          ASSERT_NO_FATAL_FAILURE(expect_plain_sums(random_rows(random, m, n),
                                                    random_matrix(random, m, k),
                                                    random_rows(random, k, n), n));
        }
      }
    }
  }
}

TEST_P(Combinations, AreThePlainSumsAroundTheLengthsOfASum) {
  std::mt19937 random(2);
  const std::size_t longest = products_in_a_tile;
  for (const int p : {2, 101, 251}) {
    const ring_in_force ring(p);
    for (const std::size_t k : {longest - 1, longest, longest + 1, 2 * longest, 2 * longest + 3}) {
      ASSERT_NO_FATAL_FAILURE(expect_plain_sums(random_rows(random, 17, 20),
                                                random_matrix(random, 17, k),
                                                random_rows(random, k, 20), 20));
    }
  }
}

TEST_P(Combinations, LeaveWhatStandsAroundTheRowsAlone) {
  std::mt19937 random(3);
  const ring_in_force ring(251);
  for (std::size_t offset = 0; offset < 32; ++offset) {
    for (const std::size_t n : {1U, 16U, 30U}) {
      ASSERT_NO_FATAL_FAILURE(
          expect_plain_sums(random_rows(random, 18, n + 64), random_matrix(random, 18, 17),
                            random_rows(random, 17, n + 64), n, offset, 31 - offset));
    }
  }
}

TEST_P(Combinations, AreExactWhereSumsAreLargest) {
  for (const int p : {2, 127, 128, 251}) {
    const ring_in_force ring(p);
    const Fp8 greatest(p - 1);
    for (const std::size_t k : {products_in_a_tile, 3 * products_in_a_tile}) {
      matrix a(static_cast<int>(k), 16);
      for (int i = 0; i < 16; ++i) std::fill(a[i].begin(), a[i].end(), greatest);
      ASSERT_NO_FATAL_FAILURE(
          expect_plain_sums(rows(16, row(16, greatest)), a, rows(k, row(16, greatest)), 16));
    }
  }
}

// Every remainder after every quotient by p, in a tile of one product more or less.
TEST_P(Combinations, AreExactForSumsOfEverySizeAndRemainder) {
  std::mt19937 random(4);
  for (const int p : {2, 3, 5, 61, 127, 131, 241, 251}) {
    const ring_in_force ring(p);
    const std::size_t k = products_in_a_tile;
    const Fp8 greatest(p - 1);
    for (std::size_t full = 0; full < k; full += 5) {
      matrix a = random_matrix(random, 16, k);
      rows b = random_rows(random, k, 64);
      for (std::size_t j = 0; j < full; ++j) {
        for (int i = 0; i < 16; ++i) a[i][j] = greatest;
        std::fill(b[j].begin(), b[j].end(), greatest);
      }
      ASSERT_NO_FATAL_FAILURE(expect_plain_sums(random_rows(random, 16, 64), a, b, 64));
    }
  }
}

TEST_P(Combinations, UseAsManyCoefficientsOfAMatrixAsThereAreRows) {
  const ring_in_force ring(101);
  std::mt19937 random(5);
  ASSERT_NO_FATAL_FAILURE(expect_plain_sums(
      random_rows(random, 16, 18), random_matrix(random, 20, 16), random_rows(random, 16, 18), 18));
}

TEST_P(Combinations, OfRowsOfAMatrixAreItsRows) {
  const ring_in_force ring(101);
  std::mt19937 random(6);
  const rows b = random_rows(random, 20, 30);
  matrix c(30, 20);
  matrix a(20, 20);
  for (int i = 0; i < 20; ++i) a[i][19 - i] = Fp8(1);
  std::vector<row_view> sums;
  for (int i = 0; i < 20; ++i) sums.push_back(c[i]);
  add_combinations(sums, a, std::vector<const_row_view>(b.begin(), b.end()));
  for (int i = 0; i < 20; ++i) {
    EXPECT_TRUE(std::equal(c[i].begin(), c[i].end(), b[19 - i].begin())) << i;
  }
}

TEST(CombinationsDeathTest, RowsHaveOneLengthInTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "checked in the paranoid build";
  const ring_in_force ring;
  row sum(5);
  const row added(4);
  const matrix a(1, 1);
  const std::vector<row_view> c = {sum};
  const std::vector<const_row_view> b = {added};
  EXPECT_DEATH(add_combinations(c, a, b), "rows of one call have one length");
}

}  // namespace
}  // namespace zep::tests
