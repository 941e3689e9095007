#include "points/record/scheme.h"

#include <gtest/gtest.h>

#include "points/walk/buchberger_moeller.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

TEST(Scheme, StartsWithPointsAtTheOriginAndNoResults) {
  const ring_in_force ring(101, 3);
  const scheme X(4);
  EXPECT_EQ(X.s, 4);
  EXPECT_EQ(X.P, matrix(3, 4));
  EXPECT_EQ(X.O, std::vector<monom>(4));
  EXPECT_EQ(X.hilb_fct, std::vector<int>(4));
  EXPECT_EQ(X.delta_fct, std::vector<int>(4));
  EXPECT_EQ(X.linres[0], std::vector<int>(3));
  EXPECT_EQ(X.linres[1], std::vector<int>(3));
  EXPECT_FALSE(X.has_bu_mo);
  for (const int n : {X.sigma, X.delta, X.alpha, X.sep, X.is_CB, X.is_ar_Go, X.A_d_cols,
                      X.A_d_maxdeg, X.linid, X.linom, no_of_border(X), no_of_pr(X)}) {
    EXPECT_EQ(n, 0);
  }
  EXPECT_FALSE(X.Ix || X.beta_matrix || X.Can_Lf || X.min_Ix || X.socle);
  EXPECT_TRUE(X.basis.empty() && X.pr_deg.empty() && X.A_d.empty() && X.A_d_coldeg.empty());
}

TEST(Scheme, StartsWithoutAPresentationOfTheCanonicalModule) {
  const scheme X(4);
  EXPECT_EQ(no_of_pr(X), 0);
  EXPECT_TRUE(X.pr_deg.empty());
  EXPECT_EQ(X.A_d_cols, 0);
  EXPECT_TRUE(X.A_d.empty());
  EXPECT_EQ(X.A_d_maxdeg, 0);
  EXPECT_TRUE(X.A_d_coldeg.empty());
}

TEST(Scheme, OfANegativeNumberOfPointsHasNone) {
  const scheme X(-3);
  EXPECT_EQ(X.s, 0);
  EXPECT_EQ(X.P.rows(), 0);
}

TEST(Scheme, PrintsItsPointsInOneRun) {
  const ring_in_force ring(101, 2);
  const scheme X = make_set({{2, 0}, {5, 7}});
  std::ostringstream out;
  disp_scheme(out, X);
  EXPECT_EQ(out.str(), "<1:2:0><1:5:7>");
}

TEST(Scheme, ReadsItsPointsCoordinateByCoordinate) {
  const ring_in_force ring(101, 2);
  std::istringstream in("1 1/2 -3\n102");
  scheme X(2);
  in >> X;
  std::ostringstream out;
  disp_scheme(out, X);
  EXPECT_EQ(out.str(), "<1:1:-50><1:-3:1>");
}

TEST(Scheme, FindsMonomialsByKey) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {2, 5}});
  const silence quiet;
  bu_mo(X);
  for (int i = 0; i < X.s; ++i) {
    EXPECT_EQ(is_el_OO(X, X.O[i]), i);
    EXPECT_EQ(is_el_O(X, X.O[i]), i);
    EXPECT_EQ(is_el_G(X, X.O[i]), -1);
    EXPECT_EQ(is_el_B(X, X.O[i]), -1);
  }
  for (int b = 0; b < no_of_border(X); ++b) {
    EXPECT_EQ(is_el_B(X, X.B[b]), b);
    EXPECT_EQ(is_el_O(X, X.B[b]), -1);
    EXPECT_EQ(is_el_OO(X, X.B[b]), -1);
  }
  for (int g = 0; g < X.Ix->no_of_gens(); ++g) EXPECT_EQ(is_el_G(X, X.Ix->lead(g)), g);
}

TEST(Scheme, FindsTheMonomialOneWithoutLookingAndNothingOfALargerDegree) {
  const ring_in_force ring(101, 2);
  scheme X(1);
  EXPECT_EQ(is_el_O(X, monom()), 0);
  X = make_set({{0, 0}, {1, 0}, {0, 1}});
  const silence quiet;
  bu_mo(X);
  EXPECT_EQ(is_el_O(X, monomial({2, 0})), -1);
  EXPECT_EQ(is_el_O(X, monomial({40, 40})), -1);
}

// Degree d is looked for at the positions H(d-1) .. H(d)-1. Monomials 1 that fill O up shift these.
TEST(Scheme, FindsAMonomialByDegreeOnlyWhereThatDegreeStands) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {0, 0}, {1, 0}, {2, 0}});
  const silence quiet;
  bu_mo(X);
  ASSERT_EQ(X.O, (std::vector<monom>{monom(), variable(0), monomial({2, 0}), monom()}));
  EXPECT_EQ(X.hilb_fct, (std::vector<int>{2, 3, 4, 4}));
  EXPECT_EQ(is_el_OO(X, variable(0)), 1);
  EXPECT_EQ(is_el_O(X, variable(0)), -1);
  EXPECT_EQ(is_el_O(X, monomial({2, 0})), -1);
  EXPECT_EQ(is_el_OO(X, monom()), 0);
}

TEST(Scheme, WithoutPointsFindsNothingButTheMonomialOne) {
  const ring_in_force ring(101, 2);
  scheme X(0);
  const silence quiet;
  bu_mo(X);
  EXPECT_EQ(is_el_O(X, variable(0)), -1);
  EXPECT_EQ(is_el_OO(X, monom()), -1);
  EXPECT_EQ(is_el_B(X, variable(0)), -1);
  EXPECT_EQ(is_el_G(X, variable(0)), -1);
}

TEST(Scheme, FindsAProjectiveMonomialByItsAffinePart) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}});
  const silence quiet;
  bu_mo(X);
  monom t = X.O[2];
  prj(t);
  t.set_exp(2, 5);
  EXPECT_EQ(is_el_O(X, t), 2);
  EXPECT_EQ(is_el_OO(X, t), 2);
}

TEST(OverO, CombinationsListTheGreatestTermFirst) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), variable(1), variable(0)};
  const std::vector<Fp8> row{Fp8(3), Fp8(0), Fp8(100)};
  std::ostringstream out;
  combination(row, O).put(out);
  EXPECT_EQ(out.str(), "-X+3");
  EXPECT_EQ(leading_position(row), 2);
  EXPECT_EQ(combination(std::vector<Fp8>(3), O), polynomial(0));
  EXPECT_EQ(leading_position(std::vector<Fp8>(3)), 0);
}

}  // namespace
}  // namespace zep::tests
