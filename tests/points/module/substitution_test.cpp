// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/substitution.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <vector>

#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

using points::expressions;
using points::module_monomial;
using points::substitution;

module_monomial in(int component, std::initializer_list<int> exponents) {
  return {projective(exponents), component};
}

// Four candidates of the plane, of degrees 1, 2, 2, 3. Candidate 1 is X * candidate 3 + 5 *
// candidate 2.
expressions one_eliminated() {
  expressions known({1, 2, 2, 3});
  matrix coefs(2, 1);
  coefs[0][0] = Fp8(5);
  coefs[0][1] = Fp8(1);
  known.add(2, {1}, {in(2, {}), in(3, {1})}, coefs);
  return known;
}

TEST(Expressions, TellWhatIsEliminatedAndWhatItIs) {
  const ring_in_force ring(101, 2);
  const expressions known = one_eliminated();
  for (int a = 0; a < 4; ++a) EXPECT_EQ(known.is_eliminated(a), a == 1);
  EXPECT_EQ(known.degree(3), 3);
  EXPECT_EQ(elements_of(known[1]), (row{Fp8(5), Fp8(1)}));
  EXPECT_EQ(known.monomials(2).size(), 2U);
  EXPECT_TRUE(known.monomials(1).empty());
}

TEST(Expressions, OfNoCandidatesAreThere) {
  const expressions none{std::vector<int>()};
  EXPECT_NO_THROW(substitution({}, none));
}

TEST(Substitution, LeavesRemainingCandidatesAsTheyAre) {
  const ring_in_force ring(101, 2);
  const expressions known = one_eliminated();
  const substitution to({in(3, {1, 1}), in(2, {1})}, known);
  ASSERT_EQ(to.monomials().size(), 2U);
  EXPECT_EQ(to.monomials()[0].component, 2);
  matrix sums(2, 1);
  matrix coefs(2, 1);
  coefs[0][0] = Fp8(3);
  coefs[0][1] = Fp8(4);
  to.add(sums, coefs);
  EXPECT_EQ(elements_of(sums[0]), (row{Fp8(4), Fp8(3)}));
}

// 7 * Y * candidate 1 + 2 * Y * candidate 2 = 7 X Y * candidate 3 + (2 + 35) Y * candidate 2.
TEST(Substitution, PutsWhatTheyAreForEliminatedCandidates) {
  const ring_in_force ring(101, 2);
  const expressions known = one_eliminated();
  const substitution to({in(1, {0, 1}), in(2, {0, 1}), {monom(), -1}}, known);
  ASSERT_EQ(to.monomials().size(), 2U);
  EXPECT_EQ(to.monomials()[1].m, projective({1, 1}));
  matrix coefs(3, 2);
  coefs[1][0] = Fp8(7);
  coefs[1][1] = Fp8(2);
  coefs[1][2] = Fp8(50);
  matrix sums(2, 2);
  sums[0][0] = Fp8(1);
  to.add(sums, coefs);
  EXPECT_EQ(elements_of(sums[0]), (row{Fp8(1), Fp8(0)}));
  EXPECT_EQ(elements_of(sums[1]), (row{Fp8(37), Fp8(7)}));
  row sum(2);
  to.add_monomial(sum, 0);
  EXPECT_EQ(sum, (row{Fp8(5), Fp8(1)}));
  to.add_monomial(sum, 1);
  EXPECT_EQ(sum, (row{Fp8(6), Fp8(1)}));
  to.add_monomial(sum, 2);
  EXPECT_EQ(sum, (row{Fp8(6), Fp8(1)}));
}

TEST(Substitution, OfSomeOfTheMonomialsTakesTheFirst) {
  const ring_in_force ring(101, 2);
  const expressions known = one_eliminated();
  const substitution to({in(1, {0, 1}), in(1, {1, 0})}, known);
  matrix coefs(1, 1);
  coefs[0][0] = Fp8(1);
  matrix sums(static_cast<int>(to.monomials().size()), 1);
  to.add(sums, coefs);
  row expected(to.monomials().size());
  to.add_monomial(expected, 0);
  EXPECT_EQ(elements_of(sums[0]), expected);
}

// Many candidates, eliminated and not, in many elements: products of matrices and single rows give
// the same.
TEST(SubstitutionProperty, OfManyElementsAddsTheirMonomialsOneByOne) {
  std::mt19937 random(7);
  for (const int p : {2, 101, 251}) {
    const ring_in_force ring(p, 3);
    constexpr int n = 60;
    expressions known(std::vector<int>(n, 4));
    std::vector<module_monomial> remaining;
    for (int a = 40; a < n; ++a) remaining.push_back(in(a, {}));
    std::vector<int> eliminated = linalg::identity_order(40);
    matrix what(n - 40, 40);
    for (int i = 0; i < 40; ++i) {
      for (Fp8& c : what[i]) c = below(random, p);
    }
    known.add(4, eliminated, remaining, what);
    std::vector<module_monomial> from;
    for (int a = 0; a < n; ++a) {
      for (int v = 0; v < 2; ++v) from.push_back({projective_variable(v), a});
    }
    const substitution to(from, known);
    matrix coefs(static_cast<int>(from.size()), 50);
    for (int r = 0; r < coefs.rows(); ++r) {
      for (Fp8& c : coefs[r]) c = below(random, 3) == 0 ? below(random, p) : 0;
    }
    matrix sums(static_cast<int>(to.monomials().size()), coefs.rows());
    to.add(sums, coefs);
    for (int r = 0; r < coefs.rows(); ++r) {
      row expected(to.monomials().size());
      for (int k = 0; k < coefs.cols(); ++k) {
        row one(expected.size());
        to.add_monomial(one, k);
        for (std::size_t q = 0; q < one.size(); ++q) expected[q] += coefs[r][k] * one[q];
      }
      ASSERT_EQ(elements_of(sums[r]), expected);
    }
  }
}

}  // namespace
}  // namespace zep::tests
