// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/Can_OO.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

monom X(int e = 1) { return power_product({e}); }
monom Y(int e = 1) { return power_product({0, e}); }

// Three points of P^2 with the order ideal 1, Y, X.
points::order_ideal three_points() { return walked({{0, 0}, {1, 0}, {0, 1}}); }

TEST(IsElO, FindsTheMembersAndNoMonomialOfTheBorder) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = walked({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {2, 5}});
  for (int i = 0; i < S.s(); ++i) EXPECT_EQ(is_el_O(S, S.O[i]), i);
  for (const monom& t : S.B) EXPECT_EQ(is_el_O(S, t), -1);
}

TEST(IsElO, FindsTheMonomialOneWithoutLookingAndNothingOfALargerDegree) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(is_el_O(walked({}), monom()), 0);
  const points::order_ideal S = three_points();
  EXPECT_EQ(is_el_O(S, monom()), 0);
  EXPECT_EQ(is_el_O(S, monomial({2, 0})), -1);
  EXPECT_EQ(is_el_O(S, monomial({40, 40})), -1);
}

TEST(IsElO, FindsNothingOfANegativeDegree) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(is_el_O(three_points(), monomial({-1, 0})), -1);
}

// Degree d is looked for at the positions H(d-1) .. H(d)-1. Monomials 1 that fill O up shift these.
TEST(IsElO, FindsAMonomialByDegreeOnlyWhereThatDegreeStands) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = walked({{0, 0}, {0, 0}, {1, 0}, {2, 0}});
  ASSERT_EQ(S.O, (std::vector<monom>{monom(), variable(0), monomial({2, 0}), monom()}));
  ASSERT_EQ(S.H.hilb_fct, (std::vector<int>{2, 3, 4, 4}));
  EXPECT_EQ(is_el_OO(S, variable(0)), 1);
  EXPECT_EQ(is_el_O(S, variable(0)), -1);
  EXPECT_EQ(is_el_O(S, monomial({2, 0})), -1);
}

TEST(IsElO, WithoutPointsFindsNothingButTheMonomialOne) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(is_el_O(walked({}), variable(0)), -1);
}

TEST(IsElO, FindsAProjectiveMonomialByItsAffinePart) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  monom t = S.O[2];
  prj(t);
  t.set_exp(2, 5);
  EXPECT_EQ(is_el_O(S, t), 2);
}

TEST(Check, FindsTheTermWithAMonomial) {
  const ring_in_force ring(101, 2);
  const polynomial f = sum_of({{2, X(2)}, {1, Y()}, {5, monom()}});
  EXPECT_EQ(check(f, X(2)), 0);
  EXPECT_EQ(check(f, Y()), 1);
  EXPECT_EQ(check(f, monom()), 2);
  EXPECT_EQ(check(f, X()), -1);
}

TEST(Check, FindsNoTermInZero) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(check(polynomial(0), monom()), -1);
}

TEST(Check, ComparesTheHomogenisingVariableOnlyWhenBothHaveIt) {
  const ring_in_force ring(101, 2);
  const polynomial f = sum_of({{1, projective({2, 0, 0})}, {1, projective({0, 1, 1})}});
  EXPECT_EQ(check(f, Y()), 1);
  EXPECT_EQ(check(f, projective({0, 1, 1})), 1);
  EXPECT_EQ(check(f, projective({0, 1, 0})), -1);
}

TEST(CanOO, KeepsWhatLiesOnTheOrderIdeal) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {X()};
  const std::vector<polynomial> Can = {polynomial(7)};
  polynomial f = sum_of({{2, X()}, {1, Y()}, {5, monom()}});
  const polynomial before = f;
  EXPECT_EQ(Can_OO(f, OO, Can, S), before);
  f = 0;
  EXPECT_EQ(Can_OO(f, OO, Can, S), polynomial(0));
}

TEST(CanOO, ReplacesEveryTermOutsideTheOrderIdealAndReturnsItsArgument) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {Y(2), X(2)};
  const std::vector<polynomial> Can = {polynomial(Y()), sum_of({{3, X()}, {1, monom()}})};
  polynomial f = sum_of({{2, X(2)}, {1, Y(2)}, {1, X()}});
  polynomial& result = Can_OO(f, OO, Can, S);
  EXPECT_EQ(&result, &f);
  EXPECT_EQ(f, sum_of({{7, X()}, {1, Y()}, {2, monom()}}));
}

TEST(CanOO, ReplacesWhatComesInWithACanonicalForm) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {X(2), X(3), Y(2)};
  const std::vector<polynomial> Can = {polynomial(Y(2), Fp8(5)), sum_of({{1, X(2)}, {1, X()}}),
                                       polynomial(Y(), Fp8(2))};
  polynomial f(X(3));
  EXPECT_EQ(Can_OO(f, OO, Can, S), sum_of({{1, X()}, {10, Y()}}));
}

TEST(CanOO, TakesTheFirstOfSeveralForms) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {X(2), X(2)};
  const std::vector<polynomial> Can = {polynomial(X()), polynomial(Y())};
  polynomial f(X(2));
  EXPECT_EQ(Can_OO(f, OO, Can, S), polynomial(X()));
}

TEST(CanOO, ReplacesByZeroToo) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {X(2)};
  const std::vector<polynomial> Can = {polynomial(0)};
  polynomial f = sum_of({{1, X(2)}, {1, Y()}});
  EXPECT_EQ(Can_OO(f, OO, Can, S), polynomial(Y()));
  f = X(2);
  EXPECT_EQ(Can_OO(f, OO, Can, S), polynomial(0));
}

TEST(CanOO, KeepsTheDegreeOfHomogeneousPolynomials) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {X(2)};
  const std::vector<polynomial> Can = {sum_of({{3, projective({1, 0, 1})}})};
  polynomial f = sum_of({{1, projective({2, 0, 2})}, {1, projective({0, 1, 3})}});
  EXPECT_EQ(Can_OO(f, OO, Can, S),
            sum_of({{3, projective({1, 0, 3})}, {1, projective({0, 1, 3})}}));
}

TEST(CanOO, TellsProjectiveMonomialsWithOtherPowersApart) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {projective({2, 0, 0}), projective({2, 0, 1})};
  const std::vector<polynomial> Can = {polynomial(projective({0, 1, 1})),
                                       polynomial(projective({1, 0, 2}))};
  polynomial f(projective({2, 0, 1}));
  EXPECT_EQ(Can_OO(f, OO, Can, S), polynomial(projective({1, 0, 2})));
}

TEST(CanOO, KeepsATermWithoutAFormAndGoesOn) {
  const ring_in_force ring(101, 2);
  const points::order_ideal S = three_points();
  const std::vector<monom> OO = {Y(2)};
  const std::vector<polynomial> Can = {polynomial(Y())};
  polynomial f = sum_of({{1, X(2)}, {1, Y(2)}});
  EXPECT_EQ(Can_OO(f, OO, Can, S), sum_of({{1, X(2)}, {1, Y()}}));
  polynomial g(X(2));
  EXPECT_EQ(Can_OO(g, {}, {}, S), polynomial(X(2)));
}

TEST(CanOO, GivesUpOnFormsThatLeadInACircle) {
  for (const int p : {6, 101}) {
    const ring_in_force ring(p, 2);
    const points::order_ideal S = three_points();
    const std::vector<monom> OO = {X(2), Y(2), X(3)};
    const std::vector<polynomial> Can = {polynomial(Y(2), Fp8(2)), polynomial(X(2), Fp8(3)),
                                         sum_of({{2, X(3)}, {3, X(2)}})};
    polynomial f = sum_of({{1, X(3)}, {1, X(2)}});
    // X^3 three times: 2X^3 + 4X^2, 4X^3 + 10X^2, 8X^3 + 22X^2.
    EXPECT_EQ(Can_OO(f, OO, Can, S), sum_of({{8 % p, X(3)}, {22 % p, X(2)}}));
  }
}

// The leading monomials of the Groebner basis, and their canonical forms made homogeneous.
struct forms_of_basis {
  explicit forms_of_basis(const points::order_ideal& S) {
    for (int g = 0; g < S.Ix.no_of_gens(); ++g) {
      polynomial h;
      hom(h, groebner_element(S, g));
      polynomial lead(h.term(0));
      OO.push_back(S.Ix.lead(g));
      Can.push_back(lead - h);
    }
  }

  std::vector<monom> OO;
  std::vector<polynomial> Can;
};

// A homogeneous polynomial on the order ideal and the leading monomials of the Groebner basis.
polynomial random_form(const points::order_ideal& S, int degree, std::mt19937& random) {
  polynomial f;
  const auto add = [&](monom m) {
    if (m.tot_deg() > degree || below(random, 2) == 0) return;
    prj(m);
    m.set_exp(proj - 1, degree - m.tot_deg());
    f += polynomial(m, Fp8(below(random, Fp8::prime)));
  };
  for (const monom& m : S.O) add(m);
  for (int g = 0; g < S.Ix.no_of_gens(); ++g) add(S.Ix.lead(g));
  return f;
}

void expect_homogeneous_on_order_ideal(const polynomial& f, int degree,
                                       const points::order_ideal& S) {
  for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
    const monom& m = f.term(i);
    ASSERT_GE(is_el_OO(S, m), 0);
    ASSERT_EQ(m.tot_deg() + m.exp(proj - 1), degree);
  }
}

TEST(CanOOProperty, GivesTheFormOnTheOrderIdealWithTheSameValues) {
  std::mt19937 random(59);
  for_each_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal S = walked(points);
    const forms_of_basis forms(S);
    const int degree = S.H.sigma + 1 + below(random, 4);
    polynomial f = random_form(S, degree, random);
    const polynomial before = f;
    Can_OO(f, forms.OO, forms.Can, S);
    ASSERT_NO_FATAL_FAILURE(expect_homogeneous_on_order_ideal(f, degree, S));
    for (const coordinates& point : points) {
      ASSERT_EQ(value_at(f, point), value_at(before, point));
    }
    const polynomial once = f;
    ASSERT_EQ(Can_OO(f, forms.OO, forms.Can, S), once);
  });
}

TEST(CanOOProperty, ComesToAnEndOnMeaninglessSets) {
  std::mt19937 random(61);
  for_each_meaningless_set([&](const std::vector<coordinates>& points) {
    const points::order_ideal S = walked(points);
    const forms_of_basis forms(S);
    const int degree = S.H.sigma + 2;
    polynomial f = random_form(S, degree, random);
    Can_OO(f, forms.OO, forms.Can, S);
    ASSERT_NO_FATAL_FAILURE(expect_homogeneous_on_order_ideal(f, degree, S));
  });
}

}  // namespace
}  // namespace zep::tests
