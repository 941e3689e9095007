// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/polynomial.h"

#include <gtest/gtest.h>

#include "tests/arith/power_product.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

monom X() { return power_product({1, 0, 0}); }
monom Y() { return power_product({0, 1, 0}); }

void expect_zero(const polynomial& f) {
  EXPECT_EQ(f.no_of_monoms(), 1);
  EXPECT_EQ(sign(f.term(0)), 0);
  EXPECT_EQ(f.coef(0), 0);
  EXPECT_EQ(sign(f), 0);
}

TEST(Polynomial, ZeroIsTheSingleTermZero) {
  const ring_in_force ring;
  expect_zero(polynomial());
  expect_zero(polynomial(0));
  expect_zero(polynomial(101));
  expect_zero(polynomial(std::vector<monom>{}, std::vector<Fp8>{}));
  expect_zero(polynomial(X(), Fp8(0)));
}

TEST(Polynomial, IsMadeOfAMonomialWithCoefficientOne) {
  const ring_in_force ring;
  const polynomial f(X());
  EXPECT_EQ(f.no_of_monoms(), 1);
  EXPECT_EQ(f.term(0), X());
  EXPECT_EQ(f.coef(0), 1);
}

TEST(Polynomial, ConstantsAreReduced) {
  const ring_in_force ring;
  const polynomial f(300);
  EXPECT_EQ(f.no_of_monoms(), 1);
  EXPECT_EQ(sign(f.term(0)), 0);
  EXPECT_EQ(f.coef(0), 98);
}

TEST(Polynomial, AssignmentReplacesEverything) {
  const ring_in_force ring;
  const polynomial source = sum_of({{2, X()}, {3, Y()}});
  polynomial f;
  f = source;
  EXPECT_EQ(f, source);
  f = X();
  EXPECT_EQ(f, polynomial(X()));
  f = source;
  f = 300;
  EXPECT_EQ(f, polynomial(98));
  f = source;
  f = 202;
  expect_zero(f);
}

TEST(Polynomial, AssigningAConstantKeepsAProjectivePolynomialProjective) {
  const ring_in_force ring;
  polynomial f = sum_of({{1, projective({1, 0, 0, 0})}, {1, projective({0, 0, 0, 1})}});
  f = 5;
  EXPECT_EQ(text_of(f), "5");
  EXPECT_EQ(f.term(0).dim(), 4);
  EXPECT_EQ(f.term(0).exp(3), 0);
}

TEST(Polynomial, SelfAssignmentChangesNothing) {
  const ring_in_force ring;
  polynomial f = sum_of({{2, X()}, {3, Y()}});
  const polynomial& same = f;
  f = same;
  EXPECT_EQ(f, sum_of({{2, X()}, {3, Y()}}));
}

TEST(Polynomial, CopiesAreIndependent) {
  const ring_in_force ring;
  const polynomial source = sum_of({{2, X()}, {3, Y()}});
  polynomial copy = source;
  copy *= Fp8(5);
  EXPECT_EQ(source.coef(0), 2);
  EXPECT_EQ(copy.coef(0), 10);
}

TEST(Polynomial, OrderLooksAtTheLeadingMonomialAlone) {
  const ring_in_force ring;
  const polynomial f = sum_of({{2, X()}, {3, Y()}});
  const polynomial g = sum_of({{9, X()}});
  const polynomial h = sum_of({{9, Y()}, {1, monom(0)}});
  EXPECT_FALSE(f < g || f > g || g < f || g > f);
  EXPECT_TRUE(h < f && f > h);
  EXPECT_FALSE(f < h || h > f);
}

TEST(Polynomial, OrderIsProjectiveForProjectivePolynomials) {
  const ring_in_force ring;
  const polynomial f(projective({1, 0, 0, 1}));
  const polynomial g(projective({1, 0, 0, 2}));
  EXPECT_TRUE(f < g && g > f);
  EXPECT_FALSE(polynomial(X()) < g || polynomial(X()) > g);
}

TEST(Polynomial, EqualityComparesCountsTermsAndCoefficients) {
  const ring_in_force ring;
  const polynomial f = sum_of({{2, X()}, {3, Y()}});
  EXPECT_TRUE(f == sum_of({{2, X()}, {3, Y()}}));
  EXPECT_TRUE(f != sum_of({{2, X()}, {4, Y()}}));
  EXPECT_TRUE(f != sum_of({{2, X()}, {3, monom(0)}}));
  EXPECT_TRUE(f != sum_of({{2, X()}}));
  EXPECT_TRUE(sum_of({{2, X()}}) != f);
}

TEST(Polynomial, ZeroIsNeutralInSums) {
  const ring_in_force ring;
  const polynomial p = sum_of({{2, X()}, {3, Y()}});
  polynomial f(0);
  f += p;
  EXPECT_EQ(f, p);
  f += polynomial(0);
  EXPECT_EQ(f, p);
  f -= polynomial(0);
  EXPECT_EQ(f, p);
  f = 0;
  f -= p;
  EXPECT_EQ(f, sum_of({{99, X()}, {98, Y()}}));
  expect_zero(polynomial(0) + polynomial(0));
}

TEST(Polynomial, DifferenceOfEqualPolynomialsIsZero) {
  const ring_in_force ring;
  polynomial p = sum_of({{2, X()}, {3, Y()}});
  const polynomial q = p;
  p -= q;
  expect_zero(p);
  EXPECT_EQ(text_of(p), " 0");
}

TEST(Polynomial, CancelledTermsAreDropped) {
  const ring_in_force ring;
  polynomial f = sum_of({{1, X()}, {1, Y()}});
  f += sum_of({{100, X()}});
  EXPECT_EQ(f, polynomial(Y()));
}

TEST(Polynomial, SumsMergeInTheOrderInForce) {
  const ring_in_force degrevlex;
  const monom xz = power_product({1, 0, 1});
  const monom yy = power_product({0, 2, 0});
  EXPECT_EQ((polynomial(xz) + polynomial(yy)).term(0), yy);
  EXPECT_EQ((polynomial(yy) + polynomial(xz)).term(0), yy);
  const ring_in_force deglex(101, 3, term_order::deglex);
  EXPECT_EQ((polynomial(xz) + polynomial(yy)).term(0), xz);
  EXPECT_EQ((polynomial(yy) + polynomial(xz)).term(0), xz);
}

TEST(Polynomial, SumsOfProjectivePolynomialsCompareAffinePartsOnly) {
  const ring_in_force ring;
  const polynomial sum =
      sum_of({{2, projective({1, 0, 0, 1})}}) + sum_of({{3, projective({1, 0, 0, 5})}});
  ASSERT_EQ(sum.no_of_monoms(), 1);
  EXPECT_EQ(sum.coef(0), 5);
  EXPECT_EQ(text_of(sum.term(0)), "XT");
  EXPECT_EQ(text_of(sum_of({{2, X()}}) - sum_of({{3, projective({1, 0, 0, 5})}})), "- X");
}

TEST(Polynomial, SumsTakeOverProjectiveTermsAsTheyAre) {
  const ring_in_force ring;
  const polynomial f = sum_of({{3, projective({1, 0, 0, 5})}});
  EXPECT_EQ(text_of(polynomial(0) + f), "3XT^5");
  EXPECT_EQ(text_of(polynomial(0) - f), "- 3XT^5");
  EXPECT_EQ(text_of(sum_of({{1, projective({0, 1, 0, 1})}}) + f), "3XT^5 + YT");
  EXPECT_EQ(text_of(f - sum_of({{1, projective({0, 1, 0, 1})}})), "3XT^5 - YT");
}

TEST(Polynomial, OperatorsLeaveTheirOperands) {
  const ring_in_force ring;
  const polynomial f = sum_of({{2, X()}, {3, Y()}});
  const polynomial g = sum_of({{1, X()}});
  EXPECT_EQ(f + g, sum_of({{3, X()}, {3, Y()}}));
  EXPECT_EQ(f - g, sum_of({{1, X()}, {3, Y()}}));
  EXPECT_EQ(f * Fp8(2), sum_of({{4, X()}, {6, Y()}}));
  EXPECT_EQ(+f, f);
  EXPECT_EQ(-f, sum_of({{99, X()}, {98, Y()}}));
  EXPECT_EQ(f, sum_of({{2, X()}, {3, Y()}}));
  EXPECT_EQ(g, sum_of({{1, X()}}));
}

TEST(Polynomial, NegateChangesEveryCoefficientInPlace) {
  const ring_in_force ring;
  polynomial f = sum_of({{2, X()}, {100, Y()}});
  f.negate();
  EXPECT_EQ(f, sum_of({{99, X()}, {1, Y()}}));
  f = 0;
  f.negate();
  expect_zero(f);
}

TEST(Polynomial, NegativeOfZeroIsZero) {
  const ring_in_force ring;
  expect_zero(-polynomial(0));
}

TEST(Polynomial, ZeroFactorsGiveZero) {
  const ring_in_force ring;
  const polynomial f = sum_of({{2, X()}, {3, Y()}});
  expect_zero(f * Fp8(0));
  polynomial g = f;
  g *= Fp8(0);
  expect_zero(g);
  expect_zero(f * polynomial(0));
  expect_zero(polynomial(0) * f);
  expect_zero(polynomial(0) * Fp8(5));
}

TEST(Polynomial, MonomialFactorsLeaveZero) {
  const ring_in_force ring;
  polynomial f(0);
  f *= X();
  expect_zero(f);
}

TEST(Polynomial, MonomialFactorsShiftEveryTerm) {
  const ring_in_force ring;
  polynomial f = sum_of({{2, X()}, {3, monom(0)}});
  f *= power_product({1, 0, 2});
  EXPECT_EQ(f, sum_of({{2, power_product({2, 0, 2})}, {3, power_product({1, 0, 2})}}));
  polynomial g(projective({1, 0, 0, 0}));
  g *= projective({0, 0, 0, 3});
  EXPECT_EQ(text_of(g.term(0)), "XT^3");
  EXPECT_EQ(g.term(0).dim(), 4);
}

TEST(Polynomial, ProductsMultiplyOut) {
  const ring_in_force ring;
  const polynomial sum = sum_of({{1, X()}, {1, Y()}});
  const polynomial difference = sum_of({{1, X()}, {100, Y()}});
  EXPECT_EQ(text_of(sum * difference), "X^2 - Y^2");
  EXPECT_EQ(text_of(sum * sum), "X^2 + 2XY + Y^2");
}

TEST(Polynomial, DivisorsOfZeroNeverLeaveZeroCoefficients) {
  const ring_in_force ring(4);
  const polynomial f = sum_of({{2, X()}, {1, Y()}});
  EXPECT_EQ(f * Fp8(2), sum_of({{2, Y()}}));
  expect_zero(sum_of({{2, X()}, {2, Y()}}) * Fp8(2));
  EXPECT_EQ(f * f, sum_of({{1, power_product({0, 2, 0})}}));
  expect_zero(sum_of({{2, X()}}) * sum_of({{2, Y()}}));
}

TEST(Polynomial, SignTellsZeroOnly) {
  const ring_in_force ring;
  EXPECT_EQ(sign(polynomial(0)), 0);
  EXPECT_EQ(sign(polynomial(1)), 1);
  EXPECT_EQ(sign(polynomial(100)), 1);
}

TEST(Polynomial, HomRaisesEveryTermToTheLeadingDegree) {
  const ring_in_force ring;
  const polynomial f = sum_of({{1, power_product({2, 0, 0})}, {1, Y()}, {1, monom(0)}});
  polynomial h;
  hom(h, f);
  EXPECT_EQ(text_of(h), "X^2 + YT + T^2");
  for (int i = 0; i < h.no_of_monoms(); ++i) EXPECT_EQ(h.term(i).dim(), 4);
  EXPECT_EQ(dim, 3);
  EXPECT_EQ(text_of(f), "X^2 + Y + 1");
}

TEST(Polynomial, HomMayReplaceItsArgument) {
  const ring_in_force ring;
  polynomial f = sum_of({{2, X()}, {100, monom(0)}});
  hom(f, f);
  EXPECT_EQ(text_of(f), "2X - T");
}

TEST(Polynomial, HomReplacesTheHomogenisingExponent) {
  const ring_in_force ring;
  polynomial h;
  hom(h, sum_of({{1, projective({2, 0, 0, 7})}, {1, projective({0, 1, 0, 7})}}));
  EXPECT_EQ(text_of(h), "X^2 + YT");
}

TEST(Polynomial, HomOfZeroIsAProjectiveZero) {
  const ring_in_force ring;
  polynomial h(X());
  hom(h, polynomial(0));
  expect_zero(h);
  EXPECT_EQ(h.term(0).dim(), 4);
}

}  // namespace
}  // namespace zep::tests
