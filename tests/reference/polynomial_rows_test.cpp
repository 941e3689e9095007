// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/polynomial_rows.h"

#include <gtest/gtest.h>

#include <vector>

#include "arith/ordering.h"
#include "tests/arith/power_product.h"
#include "tests/points/dense_rows.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

monom X(int e = 1) { return power_product({e}); }
monom Y(int e = 1) { return power_product({0, e}); }

polynomial zero() { return polynomial(0); }

TEST(LeadingTerm, IsTheFirstTermOfAnEntry) {
  const ring_in_force ring(101, 2);
  const polynomial_row row(
      {sum_of({{5, X()}, {3, Y()}, {1, monom()}}), zero(), sum_of({{1, X(2)}, {100, Y()}})});
  ASSERT_NE(leading_term(row, 0), nullptr);
  EXPECT_EQ(leading_term(row, 0)->m, X());
  EXPECT_EQ(leading_term(row, 0)->c, 5);
  ASSERT_NE(leading_term(row, 2), nullptr);
  EXPECT_EQ(leading_term(row, 2)->m, X(2));
}

TEST(LeadingTerm, IsMissingToAZeroEntry) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(leading_term(polynomial_row({polynomial(X()), zero(), polynomial(Y())}), 1), nullptr);
  EXPECT_EQ(leading_term(polynomial_row(3), 0), nullptr);
}

TEST(Entry, IsOneOfTheEntries) {
  const ring_in_force ring(101, 2);
  const dense_row entries = {sum_of({{5, X()}, {1, monom()}}), zero(), polynomial(Y())};
  for (int j = 0; j < 3; ++j) EXPECT_EQ(entry(polynomial_row(entries), j), entries[j]);
}

TEST(Difference, SubtractsEntryByEntry) {
  const ring_in_force ring(101, 2);
  const polynomial_row row({sum_of({{2, X()}, {1, Y()}}), zero(), polynomial(X())});
  const polynomial_row other({polynomial(X()), polynomial(Y()), polynomial(X(2))});
  expect_row(difference(row, Fp8(2), other),
             {polynomial(Y()), sum_of({{99, Y()}}), sum_of({{99, X(2)}, {1, X()}})});
}

TEST(Difference, IsTheRowWhenNothingIsSubtracted) {
  const ring_in_force ring(101, 2);
  const polynomial_row row({polynomial(X()), polynomial(Y())});
  const polynomial_row other({polynomial(Y()), polynomial(Y())});
  expect_row(difference(row, Fp8(0), other), entries_of(row));
  expect_row(difference(row, Fp8(3), polynomial_row(2)), entries_of(row));
}

TEST(Difference, OfARowAndItself) {
  const ring_in_force ring(101, 2);
  const polynomial_row row({polynomial(X()), polynomial(Y())});
  expect_row(difference(row, Fp8(3), row), {sum_of({{99, X()}}), sum_of({{99, Y()}})});
  EXPECT_TRUE(difference(row, Fp8(1), row).is_zero());
}

TEST(Difference, LosesTheTermsThatBecomeZeroInACompositeCharacteristic) {
  const ring_in_force ring(6, 2);
  const polynomial_row row({polynomial(X()), zero()});
  const polynomial_row other({sum_of({{3, X(2)}, {1, Y()}}), sum_of({{3, X()}})});
  expect_row(difference(row, Fp8(2), other), {sum_of({{1, X()}, {4, Y()}}), zero()});
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
  const monom x = projective_variable(0);
  const monom y = projective_variable(1);
  const monom z = projective_variable(2);
  polynomial_matrix A = rows_of(
      {{sum_of({{1, x}, {1, y}})}, {sum_of({{1, x * z}, {1, z * z}})}, {sum_of({{2, x}, {1, z}})}});
  EXPECT_EQ(interreduce(A), (std::vector<int>{0, 0, 0}));
  expect_row(A[1], {sum_of({{1, x * z}, {1, z * z}})});
  // 2x + z - 2(x + y), normed.
  expect_row(A[2], {sum_of({{1, y}, {50, z}})});
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

}  // namespace
}  // namespace zep::tests
