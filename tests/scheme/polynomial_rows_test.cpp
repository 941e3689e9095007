#include "scheme/polynomial_rows.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "arith/ordering.h"
#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep {
namespace {

// The monomials of P^2, affine unless `dim` is raised.
monom X(int e = 1) { return power_product({e}); }
monom Y(int e = 1) { return power_product({0, e}); }
monom Z(int e = 1) { return power_product({0, 0, e}); }

polynomial zero() { return polynomial(0); }

using dense_row = std::vector<polynomial>;
using dense_matrix = std::vector<dense_row>;

dense_row entries_of(const polynomial_row& row) {
  dense_row entries;
  for (int j = 0; j < row.cols(); ++j) entries.push_back(row.entry(j));
  return entries;
}

dense_matrix entries_of(const polynomial_matrix& A) {
  dense_matrix entries;
  for (const polynomial_row& row : A) entries.push_back(entries_of(row));
  return entries;
}

polynomial_matrix rows_of(const dense_matrix& A) {
  polynomial_matrix rows;
  for (const dense_row& row : A) rows.emplace_back(row);
  return rows;
}

std::string text_of_row(const dense_row& row) {
  std::string text;
  for (const polynomial& f : row) text += text_of(f) + " ; ";
  return text;
}

void expect_in_order(const polynomial_row& row) {
  for (std::size_t i = 0; i < row.terms().size(); ++i) {
    const polynomial_row::term& t = row.terms()[i];
    ASSERT_NE(t.c.value(), 0);
    ASSERT_GE(t.column, 0);
    ASSERT_LT(t.column, row.cols());
    if (i == 0) continue;
    const polynomial_row::term& before = row.terms()[i - 1];
    ASSERT_TRUE(before.column < t.column || (before.column == t.column && before.m > t.m));
  }
}

void expect_row(const polynomial_row& row, const dense_row& expected) {
  expect_in_order(row);
  EXPECT_EQ(entries_of(row), expected) << text_of_row(entries_of(row));
}

TEST(PolynomialRow, StartsAsZero) {
  const ring_in_force ring(101, 2);
  const polynomial_row row(3);
  EXPECT_EQ(row.cols(), 3);
  EXPECT_TRUE(row.is_zero());
  EXPECT_EQ(row.leading_term(0), nullptr);
  expect_row(row, {zero(), zero(), zero()});
  EXPECT_EQ(polynomial_row().cols(), 0);
}

TEST(PolynomialRow, OfZeroPolynomialsIsZero) {
  const ring_in_force ring(101, 2);
  EXPECT_TRUE(polynomial_row({zero(), zero()}).is_zero());
}

TEST(PolynomialRow, GivesItsEntriesBack) {
  const ring_in_force ring(101, 2);
  const dense_row entries = {sum_of({{5, X()}, {3, Y()}, {1, monom()}}), zero(),
                             sum_of({{1, X(2)}, {100, Y()}})};
  const polynomial_row row(entries);
  expect_row(row, entries);
  ASSERT_NE(row.leading_term(0), nullptr);
  EXPECT_EQ(row.leading_term(0)->m, X());
  EXPECT_EQ(row.leading_term(0)->c, 5);
  EXPECT_EQ(row.leading_term(1), nullptr);
  EXPECT_EQ(row.leading_term(2)->m, X(2));
}

TEST(PolynomialRow, SumsTermsInAnyOrder) {
  const ring_in_force ring(101, 2);
  const polynomial_row row(2, {{Y(), 1, Fp8(3)},
                               {X(), 1, Fp8(4)},
                               {Y(), 0, Fp8(5)},
                               {Y(), 1, Fp8(1)},
                               {X(), 0, Fp8(0)},
                               {X(2), 0, Fp8(100)},
                               {X(2), 0, Fp8(1)}});
  expect_row(row, {sum_of({{5, Y()}}), sum_of({{4, X()}, {4, Y()}})});
  EXPECT_EQ(row.entries(), entries_of(row));
}

TEST(PolynomialRow, IsMultipliedEntryByEntry) {
  const ring_in_force ring(101, 2);
  polynomial_row row({sum_of({{2, X()}, {1, Y()}}), polynomial(50)});
  row *= Fp8(3);
  expect_row(row, {sum_of({{6, X()}, {3, Y()}}), polynomial(49)});
  row *= Fp8(0);
  EXPECT_TRUE(row.is_zero());
}

TEST(PolynomialRow, LosesTheTermsThatBecomeZeroInACompositeCharacteristic) {
  const ring_in_force ring(6, 2);
  polynomial_row row({sum_of({{3, X()}, {1, Y()}}), sum_of({{3, X()}})});
  row *= Fp8(2);
  expect_row(row, {sum_of({{2, Y()}}), zero()});
  polynomial_row from({polynomial(X()), zero()});
  from.subtract(Fp8(2), polynomial_row({sum_of({{3, X(2)}, {1, Y()}}), sum_of({{3, X()}})}));
  expect_row(from, {sum_of({{1, X()}, {4, Y()}}), zero()});
}

TEST(PolynomialRow, IsSubtractedEntryByEntry) {
  const ring_in_force ring(101, 2);
  polynomial_row row({sum_of({{2, X()}, {1, Y()}}), zero(), polynomial(X())});
  row.subtract(Fp8(2), polynomial_row({polynomial(X()), polynomial(Y()), polynomial(X(2))}));
  expect_row(row, {polynomial(Y()), sum_of({{99, Y()}}), sum_of({{99, X(2)}, {1, X()}})});
}

TEST(PolynomialRow, StaysWhenNothingIsSubtracted) {
  const ring_in_force ring(101, 2);
  polynomial_row row({polynomial(X()), polynomial(Y())});
  const dense_row before = entries_of(row);
  row.subtract(Fp8(0), polynomial_row({polynomial(Y()), polynomial(Y())}));
  row.subtract(Fp8(3), polynomial_row(2));
  expect_row(row, before);
}

TEST(PolynomialRow, CanBeSubtractedFromItself) {
  const ring_in_force ring(101, 2);
  polynomial_row row({polynomial(X()), polynomial(Y())});
  row.subtract(Fp8(3), row);
  expect_row(row, {sum_of({{99, X()}}), sum_of({{99, Y()}})});
  row.subtract(Fp8(1), row);
  EXPECT_TRUE(row.is_zero());
}

TEST(Norm, DividesAllColumnsByTheLeadingCoefficientOfOneEntry) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = {polynomial_row({polynomial(Y()), sum_of({{2, X()}, {4, Y()}})}),
                         polynomial_row({polynomial(X()), polynomial(X())})};
  norm(A, 0, 1);
  expect_row(A[0], {sum_of({{51, Y()}}), sum_of({{1, X()}, {2, Y()}})});
  expect_row(A[1], {polynomial(X()), polynomial(X())});
}

TEST(Norm, MakesTheRowZeroWhereThereIsNoInverse) {
  const ring_in_force ring(6, 2);
  polynomial_matrix A = {polynomial_row({sum_of({{2, X()}}), polynomial(Y())}),
                         polynomial_row({zero(), polynomial(Y())})};
  norm(A, 0, 0);
  EXPECT_TRUE(A[0].is_zero());
  norm(A, 1, 0);
  EXPECT_TRUE(A[1].is_zero());
}

TEST(ReduceC, SubtractsTheOtherRowInAllColumns) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = {polynomial_row({sum_of({{1, X()}, {1, Y()}}), polynomial(Y())}),
                         polynomial_row({sum_of({{5, X()}}), sum_of({{5, X(2)}, {1, Y()}})})};
  reduce_c(A, 0, 1, 0);
  expect_row(A[0], {sum_of({{1, X()}, {1, Y()}}), polynomial(Y())});
  expect_row(A[1], {sum_of({{96, Y()}}), sum_of({{5, X(2)}, {97, Y()}})});
}

TEST(ReduceC, ChangesNothingWhereTheEntryIsZero) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = {polynomial_row({polynomial(X()), polynomial(Y())}),
                         polynomial_row({zero(), polynomial(Y())})};
  reduce_c(A, 0, 1, 0);
  expect_row(A[1], {zero(), polynomial(Y())});
}

TEST(Interreduce, LeavesZeroRowsAsTheyAre) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = {polynomial_row(2), polynomial_row(2), polynomial_row(2)};
  EXPECT_EQ(interreduce(A), (std::vector<int>{-1, -1, -1}));
  EXPECT_EQ(entries_of(A), dense_matrix(3, dense_row(2, zero())));
}

TEST(Interreduce, OfNothingIsNothing) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A;
  EXPECT_EQ(interreduce(A), std::vector<int>());
  polynomial_matrix narrow(2);
  EXPECT_EQ(interreduce(narrow), (std::vector<int>{-1, -1}));
}

TEST(Interreduce, NormsTheRowsAtTheirPivots) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = rows_of(
      {{polynomial(Y()), sum_of({{2, X()}, {4, Y()}})}, {sum_of({{3, X()}}), sum_of({{6, X()}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{1, 0}));
  expect_row(A[0], {sum_of({{51, Y()}}), sum_of({{1, X()}, {2, Y()}})});
  expect_row(A[1], {polynomial(X()), sum_of({{2, X()}})});
}

TEST(Interreduce, ReducesALaterRowWithTheSamePivotAndSearchesAgain) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A =
      rows_of({{polynomial(X()), polynomial(Y())}, {sum_of({{3, X()}}), sum_of({{5, Y()}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 1}));
  expect_row(A[0], {polynomial(X()), polynomial(Y())});
  expect_row(A[1], {zero(), polynomial(Y())});
}

TEST(Interreduce, ReducesTheNewPivotByYetAnotherRow) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = rows_of({{polynomial(X()), polynomial(Y())},
                                 {polynomial(1), polynomial(Y())},
                                 {sum_of({{3, X()}}), sum_of({{5, Y()}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 1, 0}));
  expect_row(A[2], {polynomial(1), zero()});
}

TEST(Interreduce, MakesDependentRowsZero) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = rows_of({{polynomial(X()), polynomial(Y())},
                                 {polynomial(Y()), polynomial(X())},
                                 {sum_of({{1, X()}, {1, Y()}}), sum_of({{1, X()}, {1, Y()}})},
                                 {sum_of({{2, X()}}), sum_of({{2, Y()}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 1, -1, -1}));
  EXPECT_TRUE(A[2].is_zero());
  EXPECT_TRUE(A[3].is_zero());
}

TEST(Interreduce, DoesNotTouchARowWhoseTermsOnlyLaterRowsLead) {
  const ring_in_force ring(101, 2);
  polynomial_matrix A = rows_of({{sum_of({{1, X()}, {1, Y()}})}, {polynomial(Y())}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 0}));
  expect_row(A[0], {sum_of({{1, X()}, {1, Y()}})});
}

TEST(Interreduce, KeepsPivotsApartThatDifferInColumnOrMonomial) {
  const ring_in_force ring(101, 2);
  const dense_matrix entries = {{polynomial(X()), zero()},
                                {zero(), polynomial(X())},
                                {polynomial(Y()), zero()},
                                {polynomial(X(2)), zero()}};
  polynomial_matrix A = rows_of(entries);
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 1, 0, 0}));
  EXPECT_EQ(entries_of(A), entries);
}

TEST(Interreduce, DoesNotReduceByMultiples) {
  const ring_in_force ring(101, 2);
  const dense_matrix entries = {{sum_of({{1, X()}, {1, Y()}})}, {polynomial(X(2))}};
  polynomial_matrix A = rows_of(entries);
  interreduce(A);
  EXPECT_EQ(entries_of(A), entries);
}

TEST(Interreduce, TellsPowersOfTheHomogenisingVariableApart) {
  const ring_in_force ring(101, 2);
  const raised_dim raised;
  polynomial_matrix A = rows_of({{sum_of({{1, X()}, {1, Y()}})},
                                 {sum_of({{1, X() * Z()}, {1, Z(2)}})},
                                 {sum_of({{2, X()}, {1, Z()}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 0, 0}));
  expect_row(A[1], {sum_of({{1, X() * Z()}, {1, Z(2)}})});
  // 2 X + Z - 2 (X + Y), normed.
  expect_row(A[2], {sum_of({{1, Y()}, {50, Z()}})});
}

TEST(Interreduce, MakesRowsZeroWhosePivotHasNoInverse) {
  const ring_in_force ring(4, 2);
  polynomial_matrix A = rows_of({{sum_of({{2, X()}, {1, Y()}})},
                                 {sum_of({{2, X()}})},
                                 {sum_of({{3, X()}, {1, Y()}})},
                                 {sum_of({{2, X()}, {1, Y()}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{-1, -1, 0, 0}));
  EXPECT_TRUE(A[0].is_zero());
  EXPECT_TRUE(A[1].is_zero());
  expect_row(A[2], {sum_of({{1, X()}, {3, Y()}})});
  // 2 X + Y - 2 (X + 3 Y), normed.
  expect_row(A[3], {polynomial(Y())});
}

// The same in plain words, on rows with all their entries.
struct dense_result {
  std::vector<int> pivots;
  int reductions = 0;
};

int pivot_column(const dense_row& row) {
  int column = -1;
  for (int j = 0; j < static_cast<int>(row.size()); ++j) {
    if (sign(row[at(j)]) == 0) continue;
    if (column < 0 || row[at(j)].term(0) > row[at(column)].term(0)) column = j;
  }
  return column;
}

// The first row before row i with the same pivot, or -1.
int earlier_row(const dense_matrix& A, const std::vector<int>& pivots, int i, int column) {
  for (int k = 0; k < i; ++k) {
    if (pivots[at(k)] != column) continue;
    if (A[at(k)][at(column)].term(0) == A[at(i)][at(column)].term(0)) return k;
  }
  return -1;
}

dense_result dense_interreduce(dense_matrix& A) {
  dense_result result;
  for (int i = 0; i < static_cast<int>(A.size()); ++i) {
    dense_row& row = A[at(i)];
    int column = pivot_column(row);
    int k = -1;
    while (column >= 0 && (k = earlier_row(A, result.pivots, i, column)) >= 0) {
      const Fp8 c = row[at(column)].coef(0);
      for (std::size_t j = 0; j < row.size(); ++j) row[j] -= A[at(k)][j] * c;
      ++result.reductions;
      column = pivot_column(row);
    }
    if (column >= 0) {
      const Fp8 inverse = Fp8(1) / row[at(column)].coef(0);
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
  std::vector<int> degrees(at(1 + below(random, 4)));
  for (int& degree : degrees) degree = below(random, 2);
  return degrees;
}

// Row degrees and column degrees add up, as in a resolution.
dense_matrix random_matrix(std::mt19937& random) {
  const std::vector<int> column_degree = random_column_degrees(random);
  dense_matrix A(at(1 + below(random, 12)));
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
      const polynomial& f = entries[at(j)];
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
}  // namespace zep
