#include "points/module/polynomial_rows.h"

#include <gtest/gtest.h>

#include <vector>

#include "arith/ordering.h"
#include "tests/arith/power_product.h"
#include "tests/points/dense_rows.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// The monomials of P^2, affine unless `dim` is raised.
monom X(int e = 1) { return power_product({e}); }
monom Y(int e = 1) { return power_product({0, e}); }
monom Z(int e = 1) { return power_product({0, 0, e}); }

polynomial zero() { return polynomial(0); }

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

}  // namespace
}  // namespace zep::tests
