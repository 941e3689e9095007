// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/polynomial_row.h"

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

TEST(PolynomialRow, StartsAsZero) {
  const ring_in_force ring(101, 2);
  const polynomial_row row(3);
  EXPECT_EQ(row.cols(), 3);
  EXPECT_TRUE(row.is_zero());
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
  EXPECT_EQ(row.entries(), entries);
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
}

TEST(PolynomialRow, HoldsProjectiveMonomials) {
  const ring_in_force ring(101, 2);
  const polynomial_row row(
      2, {{projective({0, 1, 1}), 1, Fp8(3)}, {projective({2, 0, 0}), 1, Fp8(4)}});
  expect_row(row, {zero(), sum_of({{4, projective({2, 0, 0})}, {3, projective({0, 1, 1})}})});
  for (const polynomial_row::term& t : row.terms()) EXPECT_EQ(t.m.dim(), proj);
  EXPECT_EQ(row.terms()[1].m.exp(2), 1);
}

}  // namespace
}  // namespace zep::tests
