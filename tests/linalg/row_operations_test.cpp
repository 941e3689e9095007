// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/row_operations.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "base/paranoid.h"
#include "tests/draw.h"
#include "tests/linalg/variant_in_force.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// In bytes; no variant has a wider one.
constexpr std::size_t widest_vector = 64;
// Around all widths of vectors, and of parts of them, and several times the widest one.
const std::size_t lengths[] = {0,  1,  2,  3,  4,  5,  7,   8,   9,   15,  16,  17,  23,  31,
                               32, 33, 47, 63, 64, 65, 100, 127, 129, 300, 511, 512, 1000};
static_assert(4 * widest_vector <= 300);
// Offsets below it make up all alignments of a vector.
constexpr std::size_t margin = widest_vector;

class RowOperations : public variant_in_force {};
INSTANTIATE_TEST_SUITE_P(Every, RowOperations, testing::ValuesIn(runnable_kernels()),
                         name_of_variant);

bool is_prime(int p) {
  for (int d = 2; d < p; ++d) {
    if (p % d == 0) return false;
  }
  return p > 1;
}

// The characteristics to be tested: all primes, and some composite ones.
std::vector<int> characteristics() {
  std::vector<int> result = {4, 6, 128, 250};
  for (int p = 2; p <= 251; ++p) {
    if (is_prime(p)) result.push_back(p);
  }
  return result;
}

row random_row(std::mt19937& random, std::size_t n) {
  row result(n);
  for (Fp8& x : result) x = Fp8(below(random, Fp8::prime));
  return result;
}

// A row with room for n elements at every offset below the margin, and for a margin behind them.
row padded_row(std::mt19937& random, std::size_t n) { return random_row(random, n + 2 * margin); }

// The n elements from an offset on.
row_view stretch(row& all, std::size_t offset, std::size_t n) {
  return row_view(all).subspan(offset, n);
}
const_row_view stretch(const row& all, std::size_t offset, std::size_t n) {
  return const_row_view(all).subspan(offset, n);
}

void axpy_with_tables(row_view d, const_row_view s, Fp8 c) {
  for (std::size_t i = 0; i < d.size(); ++i) d[i] = d[i] + c * s[i];
}

void scale_with_tables(row_view d, Fp8 c) {
  for (Fp8& x : d) x = c * x;
}

void product_with_tables(row_view d, const_row_view a, const_row_view b) {
  for (std::size_t i = 0; i < d.size(); ++i) d[i] = a[i] * b[i];
}

// Whole padded rows are compared: nothing outside the n elements may change.
void expect_operations_agree(const row& a, const row& b, Fp8 c, std::size_t n, std::size_t offset_a,
                             std::size_t offset_b) {
  row expected = a;
  row found = a;
  axpy_with_tables(stretch(expected, offset_a, n), stretch(b, offset_b, n), c);
  axpy(stretch(found, offset_a, n), stretch(b, offset_b, n), c);
  ASSERT_TRUE(found == expected) << "axpy, c = " << c << ", n = " << n;
  scale_with_tables(stretch(expected, offset_a, n), c);
  scale(stretch(found, offset_a, n), c);
  ASSERT_TRUE(found == expected) << "scale, c = " << c << ", n = " << n;
}

TEST_P(RowOperations, AgreeWithTheTablesForEveryFactorPrimeAndLength) {
  std::mt19937 random(10);
  for (const int p : characteristics()) {
    const ring_in_force ring(p);
    SCOPED_TRACE(p);
    for (const std::size_t n : lengths) {
      const row a = padded_row(random, n);
      const row b = padded_row(random, n);
      for (int c = 0; c < p; ++c) {
        const auto offset = static_cast<std::size_t>(c) % margin;
        expect_operations_agree(a, b, Fp8(c), n, offset, (3 * offset + 1) % margin);
      }
    }
  }
}

TEST_P(RowOperations, AgreeWithTheTablesAtEveryPairOfOffsets) {
  std::mt19937 random(11);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (const std::size_t n :
         {std::size_t{5}, std::size_t{15}, widest_vector + 1, 2 * widest_vector}) {
      const row a = padded_row(random, n);
      const row b = padded_row(random, n);
      for (const int c : {1, p - 1, below(random, p)}) {
        for (std::size_t i = 0; i < margin; ++i) {
          for (std::size_t j = 0; j < margin; ++j) expect_operations_agree(a, b, Fp8(c), n, i, j);
        }
      }
    }
  }
}

// d + c * s for all s at once, row after row over all d and c.
TEST_P(RowOperations, AxpyIsExactForEveryTripleOfElements) {
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    const auto n = static_cast<std::size_t>(p);
    row s(n);
    for (int i = 0; i < p; ++i) s[static_cast<std::size_t>(i)] = Fp8(i);
    int wrong = 0;
    for (int d = 0; d < p; ++d) {
      for (int c = 0; c < p; ++c) {
        row found(n, Fp8(d));
        axpy(found, s, Fp8(c));
        for (int i = 0; i < p; ++i) {
          wrong += found[static_cast<std::size_t>(i)].value() != (d + c * i) % p;
        }
      }
    }
    EXPECT_EQ(wrong, 0) << "p = " << p;
  }
}

TEST_P(RowOperations, PointwiseProductAgreesWithTheTables) {
  std::mt19937 random(12);
  for (const int p : characteristics()) {
    const ring_in_force ring(p);
    for (const std::size_t n : lengths) {
      for (std::size_t offset = 0; offset < margin; offset += 3) {
        const row a = padded_row(random, n);
        const row b = padded_row(random, n);
        row expected = padded_row(random, n);
        row found = expected;
        product_with_tables(stretch(expected, 1, n), stretch(a, offset, n), stretch(b, 2, n));
        pointwise_product(stretch(found, 1, n), stretch(a, offset, n), stretch(b, 2, n));
        ASSERT_TRUE(found == expected) << "p = " << p << ", n = " << n;
      }
    }
  }
}

TEST_P(RowOperations, PointwiseProductMayReplaceItsFactors) {
  std::mt19937 random(13);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (const std::size_t n : lengths) {
      const row a = random_row(random, n);
      const row b = random_row(random, n);
      row expected(n);
      product_with_tables(expected, a, b);
      row d = a;
      pointwise_product(d, d, b);
      EXPECT_TRUE(d == expected) << "first factor, p = " << p << ", n = " << n;
      d = b;
      pointwise_product(d, a, d);
      EXPECT_TRUE(d == expected) << "second factor, p = " << p << ", n = " << n;
      d = a;
      product_with_tables(expected, a, a);
      pointwise_product(d, d, d);
      EXPECT_TRUE(d == expected) << "both factors, p = " << p << ", n = " << n;
    }
  }
}

Fp8 dot_with_tables(const_row_view a, const_row_view b) {
  Fp8 sum(0);
  for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
  return sum;
}

TEST_P(RowOperations, DotAgreesWithTheTables) {
  std::mt19937 random(15);
  for (const int p : characteristics()) {
    const ring_in_force ring(p);
    for (const std::size_t n : lengths) {
      for (std::size_t offset = 0; offset < margin; offset += 3) {
        const row a = padded_row(random, n);
        const row b = padded_row(random, n);
        ASSERT_EQ(dot(stretch(a, offset, n), stretch(b, 2, n)),
                  dot_with_tables(stretch(a, offset, n), stretch(b, 2, n)))
            << "p = " << p << ", n = " << n;
      }
    }
  }
}

TEST_P(RowOperations, DotIsExactWhereItsSumsAreLargest) {
  const ring_in_force ring(251);
  for (const std::size_t n : {32767U, 32768U, 32769U, 65536U, 100000U}) {
    const row greatest(n, Fp8(250));
    EXPECT_EQ(dot(greatest, greatest).value(), n % 251) << n;
  }
}

// What a call with rows of different lengths says when it ends the process.
constexpr char one_length[] = "rows of one call have one length";

TEST(RowOperationsDeathTest, RowsOfAxpyHaveOneLengthInTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "checked in the paranoid build";
  const ring_in_force ring;
  row longer(5);
  row shorter(4);
  for (const int c : {0, 1, 2, 100}) {
    EXPECT_DEATH(axpy(longer, shorter, Fp8(c)), one_length) << c;
    EXPECT_DEATH(axpy(shorter, longer, Fp8(c)), one_length) << c;
  }
}

TEST(RowOperationsDeathTest, RowsOfAPointwiseProductHaveOneLengthInTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "checked in the paranoid build";
  const ring_in_force ring;
  row longer(5);
  row shorter(4);
  EXPECT_DEATH(pointwise_product(shorter, longer, longer), one_length);
  EXPECT_DEATH(pointwise_product(longer, shorter, longer), one_length);
  EXPECT_DEATH(pointwise_product(longer, longer, shorter), one_length);
}

TEST(RowOperationsDeathTest, RowsOfADotProductHaveOneLengthInTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "checked in the paranoid build";
  const ring_in_force ring;
  const row longer(5);
  const row shorter(4);
  EXPECT_DEATH(static_cast<void>(dot(longer, shorter)), one_length);
  EXPECT_DEATH(static_cast<void>(dot(shorter, longer)), one_length);
}

}  // namespace
}  // namespace zep::tests
