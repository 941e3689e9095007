#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "arith/ordering.h"
#include "points/module/polynomial_rows.h"
#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/points/dense_rows.h"
#include "tests/ring_in_force.h"

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

// A projective monomial of the given degree, an affine one of that degree at the most.
monom random_monomial(int degree, std::mt19937& random) {
  monom m;
  for (int left = degree; left > 0; --left) {
    const int v = below(random, proj);
    if (v < dim) m.set_exp(v, m.exp(v) + 1);
  }
  return m;
}

polynomial random_entry(int degree, std::mt19937& random) {
  polynomial f;
  if (below(random, 2) == 0) return f;
  for (int terms = 1 + below(random, 3); terms > 0; --terms) {
    f += polynomial(random_monomial(degree, random), Fp8(below(random, Fp8::prime)));
  }
  return f;
}

dense_row random_row(int degree, const std::vector<int>& column_degree, std::mt19937& random) {
  dense_row row;
  for (const int more : column_degree) row.push_back(random_entry(degree + more, random));
  return row;
}

std::vector<int> random_column_degrees(std::mt19937& random) {
  std::vector<int> degrees(1 + below(random, 4));
  for (int& degree : degrees) degree = below(random, 2);
  return degrees;
}

// Row degrees and column degrees add up, as in a resolution.
dense_matrix random_matrix(std::mt19937& random) {
  const std::vector<int> column_degree = random_column_degrees(random);
  dense_matrix A(1 + below(random, 12));
  for (dense_row& row : A) row = random_row(below(random, 3), column_degree, random);
  return A;
}

// With affine and with projective monomials.
template <class Check>
void for_random_rings(Check check) {
  std::mt19937 random(53);
  for (const int p : {2, 3, 4, 6, 12, 101, 221, 251}) {
    for (int n = 2; n <= 4; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        const ring_in_force ring(p, n, order);
        SCOPED_TRACE(testing::Message() << "p = " << p << ", n = " << n);
        for (int round = 0; round < 30; ++round) {
          check(random);
          const raised_dim raised;
          check(random);
          if (::testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

TEST(InterreduceProperty, GivesWhatTheRuleGivesOnDenseRows) {
  int reductions = 0;
  for_random_rings([&](std::mt19937& random) {
    dense_matrix dense = random_matrix(random);
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
  for_random_rings([](std::mt19937& random) {
    polynomial_matrix A = rows_of(random_matrix(random));
    const std::vector<int> pivots = interreduce(A);
    const dense_matrix once = entries_of(A);
    ASSERT_EQ(interreduce(A), pivots);
    ASSERT_EQ(entries_of(A), once);
  });
}

TEST(PolynomialRowProperty, SubtractsAsPolynomialsDo) {
  for_random_rings([](std::mt19937& random) {
    const std::vector<int> column_degree = random_column_degrees(random);
    const int degree = below(random, 3);
    const Fp8 c(below(random, Fp8::prime));
    const dense_row b = random_row(degree, column_degree, random);
    dense_row a = random_row(degree, column_degree, random);
    polynomial_row row(a);
    row.subtract(c, polynomial_row(b));
    for (std::size_t j = 0; j < b.size(); ++j) a[j] -= b[j] * c;
    ASSERT_NO_FATAL_FAILURE(expect_row(row, a));
  });
}

TEST(PolynomialRowProperty, IsMadeOfItsEntriesOrItsTerms) {
  for_random_rings([](std::mt19937& random) {
    const dense_row entries = random_row(below(random, 3), random_column_degrees(random), random);
    const int cols = static_cast<int>(entries.size());
    std::vector<polynomial_row::term> terms;
    for (int j = cols - 1; j >= 0; --j) {
      const polynomial& f = entries[j];
      for (int i = 0; i < f.no_of_monoms(); ++i) terms.push_back({f.term(i), j, f.coef(i)});
    }
    for (const polynomial_row& row : {polynomial_row(entries), polynomial_row(cols, terms)}) {
      ASSERT_NO_FATAL_FAILURE(expect_row(row, entries));
      ASSERT_EQ(row.entries(), entries);
      ASSERT_EQ(row.is_zero(), pivot_column(entries) < 0);
    }
  });
}

}  // namespace
}  // namespace zep::tests
