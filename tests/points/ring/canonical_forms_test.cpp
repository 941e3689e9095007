#include "points/ring/canonical_forms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

scheme with_forms(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  need_Can_Lf(X);
  return X;
}

using row = std::vector<Fp8>;

row form_of(const scheme& X, const exponents& e) {
  const auto form = X.Can_Lf->form(is_el_B(X, monomial(e)));
  return {form.begin(), form.end()};
}

// A row of degree d over the members of the order ideal.
plain_form combined(const scheme& X, const row& coefs, int d) {
  plain_form f;
  for (std::size_t i = 0; i < coefs.size(); ++i) {
    f.emplace_back(exponents_of(X.O[X.Can_Lf->begin(d) + i]), coefs[i].value());
  }
  return f;
}

TEST(CanonicalForms, AreTheNegatedTailsOfLeadingFormsOrZero) {
  const ring_in_force ring(31, 2);
  const scheme X = with_forms({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {2, 17}});
  // The order ideal is 1, Y, X, Y^2, XY, and X^2 - 13 Y^2 is a leading form.
  EXPECT_EQ(form_of(X, {2, 0}), (row{Fp8(13), Fp8(0)}));
  EXPECT_TRUE(form_of(X, {0, 3}).empty());
  EXPECT_TRUE(form_of(X, {2, 1}).empty());
}

TEST(CanonicalForms, OfBorderMonomialsFurtherOutFollowFromThoseBelow) {
  const ring_in_force ring(101, 2);
  // On the line X = 2 Y the members are the powers of Y.
  const scheme L = with_forms({{0, 0}, {2, 1}, {4, 2}, {6, 3}, {8, 4}});
  for (int d = 1; d <= 4; ++d) EXPECT_EQ(form_of(L, {1, d - 1}), row{Fp8(2)});
  EXPECT_TRUE(form_of(L, {1, 4}).empty());
  EXPECT_TRUE(form_of(L, {0, 5}).empty());
}

TEST(CanonicalForms, AreMadeOnce) {
  const ring_in_force ring(101, 2);
  scheme X = with_forms({{0, 0}, {1, 0}, {0, 1}});
  ASSERT_EQ(X.Can_Lf->first(1), 1);
  X.Can_Lf.emplace(quotient::R, X.O, X.O_index, X.B, X.B_index, *X.Ix);
  const silence quiet;
  need_Can_Lf(X);
  EXPECT_EQ(X.Can_Lf->first(1), 0);
  EXPECT_EQ(quiet.out.text() + quiet.err.text(), "");
}

TEST(CanonicalForms, OfABorderMonomialThatIsReachedFromNothingAreZero) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), monomial({0, 1}), monomial({1, 0}), monomial({0, 2})};
  const std::vector<monom> B = {monomial({1, 1})};
  const canonical_forms R(quotient::artinian, O, monom_index(O), B, monom_index(B),
                          groebner_basis({}, {}));
  EXPECT_EQ(row(R.form(0).begin(), R.form(0).end()), row{Fp8(0)});
  EXPECT_EQ(R.origin_of(0).border, -1);
}

TEST(CanonicalForms, KnowNoDegreesWithoutPoints) {
  const ring_in_force ring(101, 2);
  const scheme X = with_forms({});
  EXPECT_EQ(X.Can_Lf->top_degree(), -1);
  for (int d = -2; d <= 3; ++d) EXPECT_EQ(X.Can_Lf->dimension(d), 0);
}

TEST(CanonicalForms, LeaveOutWhatOnlyFillsTheOrderIdealUp) {
  const ring_in_force ring(101, 2);
  const scheme X = with_forms({{3, 4}, {3, 4}, {1, 1}});
  EXPECT_EQ(X.O, (std::vector<monom>{monom(), monomial({0, 1}), monom()}));
  EXPECT_EQ(X.Can_Lf->top_degree(), 1);
  EXPECT_EQ(X.Can_Lf->begin(1), 1);
  EXPECT_EQ(X.Can_Lf->begin(2), 2);
  const scheme one = with_forms({{3, 4}, {3, 4}, {3, 4}});
  EXPECT_EQ(one.O, (std::vector<monom>(3)));
  EXPECT_EQ(one.Can_Lf->no_of_members(), 1);
}

TEST(CanonicalForms, OfMeaninglessPointsBreakNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    for (int b = 0; b < no_of_border(X); ++b) {
      EXPECT_EQ(static_cast<int>(X.Can_Lf->form(b).size()), X.Can_Lf->dimension(X.B[b].tot_deg()));
    }
  });
}

canonical_forms forms_in_R(const scheme& X) {
  return {quotient::R, X.O, X.O_index, X.B, X.B_index, *X.Ix};
}

TEST(CanonicalForms, InTheWholeRingReachDownToTheConstant) {
  const ring_in_force ring(101, 2);
  const scheme X = with_forms({{0, 0}, {2, 1}, {4, 2}});
  const canonical_forms R = forms_in_R(X);
  // The members are 1, Y, Y^2; X is 2 Y, and Y^3 is 3 Y^2 - 2 Y.
  const auto cubic = R.form(is_el_B(X, monomial({0, 3})));
  EXPECT_EQ(row(cubic.begin(), cubic.end()), (row{Fp8(0), Fp8(99), Fp8(3)}));
  const auto mixed = R.form(is_el_B(X, monomial({1, 2})));
  EXPECT_EQ(row(mixed.begin(), mixed.end()), (row{Fp8(0), Fp8(97), Fp8(6)}));
  const auto linear = R.form(is_el_B(X, monomial({1, 0})));
  EXPECT_EQ(row(linear.begin(), linear.end()), (row{Fp8(0), Fp8(2)}));
}

TEST(CanonicalFormsProperty, InTheWholeRingHaveTheValuesOfTheirBorderMonomials) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    const canonical_forms R = forms_in_R(X);
    ASSERT_EQ(R.no_of_members(), X.s);
    ASSERT_EQ(R.no_of_border(), no_of_border(X));
    for (int b = 0; b < R.no_of_border(); ++b) {
      const std::span<const Fp8> form = R.form(b);
      ASSERT_EQ(static_cast<int>(form.size()), R.begin(X.B[b].tot_deg() + 1));
      const polynomial f = combination(form, X.O);
      for (const coordinates& point : points) {
        ASSERT_EQ(value_at(f, point), value_at(exponents_of(X.B[b]), point));
      }
    }
  });
}

TEST(CanonicalFormsProperty, InTheReductionAreTheLastPartsOfThoseInTheWholeRing) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    const canonical_forms R = forms_in_R(X);
    for (int b = 0; b < R.no_of_border(); ++b) {
      const std::span<const Fp8> all = R.form(b);
      const std::span<const Fp8> form = X.Can_Lf->form(b);
      ASSERT_TRUE(std::equal(form.begin(), form.end(), all.end() - std::ssize(form)));
    }
  });
}

TEST(CanonicalFormsProperty, DegreesAreThoseOfTheOrderIdeal) {
  for_each_set([](const std::vector<coordinates>& points) {
    const canonical_forms R = *with_forms(points).Can_Lf;
    const plain_artinian plain(points);
    ASSERT_EQ(R.top_degree(), plain.top_degree());
    for (int d = -1; d <= R.top_degree() + 2; ++d) {
      ASSERT_EQ(R.dimension(d), static_cast<int>(plain.members(d).size()));
      ASSERT_EQ(R.begin(d + 1) - R.begin(d), R.dimension(d));
    }
  });
}

TEST(CanonicalFormsProperty, ProductsAreFoundWhereTheyAre) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    for (int i = 0; i < X.s; ++i) {
      for (int v = 0; v < dim; ++v) {
        const auto [in_O, position] = X.Can_Lf->times(i, v);
        const std::vector<monom>& where = in_O ? X.O : X.B;
        ASSERT_EQ(exponents_of(where[position]), times_variable(exponents_of(X.O[i]), v));
      }
    }
  });
}

TEST(CanonicalFormsProperty, AreCongruentToTheirBorderMonomials) {
  int not_zero = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    const plain_artinian plain(points);
    for (int b = 0; b < no_of_border(X); ++b) {
      const exponents e = exponents_of(X.B[b]);
      const int d = degree_of(e);
      const row form = form_of(X, e);
      plain_form difference = combined(X, form, d);
      difference.emplace_back(e, Fp8::prime - 1);
      ASSERT_TRUE(is_zero(plain.residue(difference, d)));
      for (const Fp8 c : form) not_zero += c == 0 ? 0 : 1;
    }
  });
  EXPECT_GT(not_zero, 1000);
}

TEST(CanonicalFormsProperty, AreReachedFromTheGreatestBorderMonomialBelow) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    for (int b = 0; b < no_of_border(X); ++b) {
      const exponents e = exponents_of(X.B[b]);
      const auto [border, variable] = X.Can_Lf->origin_of(b);
      int k = b - 1;
      while (k >= 0 && (degree_of(exponents_of(X.B[k])) != degree_of(e) - 1 ||
                        !divides(exponents_of(X.B[k]), e))) {
        --k;
      }
      ASSERT_EQ(border, k);
      ASSERT_EQ(border < 0, is_el_G(X, X.B[b]) >= 0);
      if (k >= 0) {
        ASSERT_EQ(times_variable(exponents_of(X.B[k]), variable), e);
      }
    }
  });
}

TEST(CanonicalFormsProperty, ProductsOfCombinationsAreAdded) {
  std::mt19937 random(41);
  for_each_set([&](const std::vector<coordinates>& points) {
    const scheme X = with_forms(points);
    const plain_artinian plain(points);
    for (int d = 0; d <= X.Can_Lf->top_degree(); ++d) {
      row factor(X.Can_Lf->dimension(d));
      row sum(X.Can_Lf->dimension(d + 1));
      for (row* r : {&factor, &sum}) {
        for (Fp8& x : *r) x = below(random, Fp8::prime);
      }
      const int v = below(random, dim);
      plain_form expected = combined(X, sum, d + 1);
      for (const auto& term : times_variable(combined(X, factor, d), v)) expected.push_back(term);
      X.Can_Lf->add_product(sum, factor, d, v);
      ASSERT_EQ(plain.residue(combined(X, sum, d + 1), d + 1), plain.residue(expected, d + 1));
    }
  });
}

}  // namespace
}  // namespace zep::tests
