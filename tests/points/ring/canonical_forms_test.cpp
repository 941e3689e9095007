// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/canonical_forms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include "points/ideal/artinian_forms.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

// An order ideal with the multiplication in R/(X_0), or in R.
struct with_forms {
  explicit with_forms(const std::vector<coordinates>& points, quotient ring = quotient::artinian)
      : X(walked(points)), forms(ring, X) {}

  row form_of(const exponents& e) const {
    const const_row_view form = forms.form(is_el_B(X, monomial(e)));
    return {form.begin(), form.end()};
  }

  // A row of degree d over the members of the order ideal of that degree.
  plain_form combined(const row& coefs, int d) const {
    plain_form f;
    for (std::size_t i = 0; i < coefs.size(); ++i) {
      f.emplace_back(exponents_of(X.O[forms.begin(d) + i]), coefs[i].value());
    }
    return f;
  }

  points::order_ideal X;
  canonical_forms forms;
};

TEST(CanonicalForms, AreTheNegatedTailsOfLeadingFormsOrZero) {
  const ring_in_force ring(31, 2);
  const with_forms set({{0, 0}, {1, 0}, {0, 1}, {1, 1}, {2, 17}});
  // The order ideal is 1, Y, X, Y^2, XY, and X^2 - 13 Y^2 is a leading form.
  EXPECT_EQ(set.form_of({2, 0}), (row{Fp8(13), Fp8(0)}));
  EXPECT_TRUE(set.form_of({0, 3}).empty());
  EXPECT_TRUE(set.form_of({2, 1}).empty());
}

TEST(CanonicalForms, OfBorderMonomialsFurtherOutFollowFromThoseBelow) {
  const ring_in_force ring(101, 2);
  // On the line X = 2 Y the members are the powers of Y.
  const with_forms set({{0, 0}, {2, 1}, {4, 2}, {6, 3}, {8, 4}});
  for (int d = 1; d <= 4; ++d) EXPECT_EQ(set.form_of({1, d - 1}), row{Fp8(2)});
  EXPECT_TRUE(set.form_of({1, 4}).empty());
  EXPECT_TRUE(set.form_of({0, 5}).empty());
}

// With an order ideal from elsewhere, whose Groebner basis lacks elements.
TEST(CanonicalForms, OfABorderMonomialThatIsReachedFromNothingAreZero) {
  const ring_in_force ring(101, 2);
  const std::vector<monom> O = {monom(), monomial({0, 1}), monomial({1, 0}), monomial({0, 2})};
  const std::vector<monom> B = {monomial({1, 1}), monomial({2, 0}), monomial({0, 3}),
                                monomial({1, 2})};
  matrix separators(4, 4);
  separators[0][0] = 1;
  const points::order_ideal X(O, B, groebner_basis({}, {}), separators);
  const canonical_forms R(quotient::artinian, X);
  for (const int b : {0, 1}) {
    EXPECT_EQ(row(R.form(b).begin(), R.form(b).end()), row{Fp8(0)});
    EXPECT_EQ(R.origin_of(b).border, -1);
  }
}

TEST(CanonicalForms, KeepNothingOfTheOrderIdeal) {
  const ring_in_force ring(101, 2);
  auto X = std::make_unique<const points::order_ideal>(walked({{0, 0}, {2, 1}, {4, 2}}));
  const canonical_forms R(quotient::R, *X);
  const int linear = is_el_B(*X, monomial({1, 0}));
  X.reset();
  EXPECT_EQ(row(R.form(linear).begin(), R.form(linear).end()), (row{Fp8(0), Fp8(2)}));
  EXPECT_EQ(R.no_of_members(), 3);
}

TEST(CanonicalForms, KnowNoDegreesWithoutPoints) {
  const ring_in_force ring(101, 2);
  for (const quotient q : {quotient::R, quotient::artinian}) {
    const canonical_forms none = with_forms({}, q).forms;
    EXPECT_EQ(none.top_degree(), -1);
    EXPECT_EQ(none.no_of_border(), 0);
    for (int d = -2; d <= 3; ++d) EXPECT_EQ(none.dimension(d), 0);
  }
}

TEST(CanonicalForms, LeaveOutWhatOnlyFillsTheOrderIdealUp) {
  const ring_in_force ring(101, 2);
  const with_forms set({{3, 4}, {3, 4}, {1, 1}});
  EXPECT_EQ(set.X.O, (std::vector<monom>{monom(), monomial({0, 1}), monom()}));
  EXPECT_EQ(set.forms.top_degree(), 1);
  EXPECT_EQ(set.forms.begin(1), 1);
  EXPECT_EQ(set.forms.begin(2), 2);
  const with_forms one({{3, 4}, {3, 4}, {3, 4}});
  EXPECT_EQ(one.X.O, (std::vector<monom>(3)));
  EXPECT_EQ(one.forms.no_of_members(), 1);
}

TEST(CanonicalForms, OfMeaninglessPointsBreakNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    for (const quotient q : {quotient::R, quotient::artinian}) {
      const with_forms set(points, q);
      ASSERT_EQ(set.forms.no_of_border(), set.X.no_of_border());
      for (int b = 0; b < set.X.no_of_border(); ++b) {
        const int d = set.X.B[b].tot_deg();
        EXPECT_EQ(static_cast<int>(set.forms.form(b).size()),
                  set.forms.begin(d + 1) - set.forms.first(d));
      }
    }
  });
}

TEST(CanonicalForms, StartAtTheConstantInTheWholeRingOnly) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = {{0, 0}, {1, 0}, {0, 1}};
  EXPECT_EQ(with_forms(points, quotient::artinian).forms.first(1), 1);
  EXPECT_EQ(with_forms(points, quotient::R).forms.first(1), 0);
  EXPECT_EQ(Can_Lf(walked(points)).first(1), 1);
}

TEST(CanonicalForms, InTheWholeRingReachDownToTheConstant) {
  const ring_in_force ring(101, 2);
  const with_forms set({{0, 0}, {2, 1}, {4, 2}}, quotient::R);
  // The members are 1, Y, Y^2; X is 2 Y, and Y^3 is 3 Y^2 - 2 Y.
  EXPECT_EQ(set.form_of({0, 3}), (row{Fp8(0), Fp8(99), Fp8(3)}));
  EXPECT_EQ(set.form_of({1, 2}), (row{Fp8(0), Fp8(97), Fp8(6)}));
  EXPECT_EQ(set.form_of({1, 0}), (row{Fp8(0), Fp8(2)}));
}

TEST(CanonicalFormsProperty, InTheWholeRingHaveTheValuesOfTheirBorderMonomials) {
  for_each_set([](const std::vector<coordinates>& points) {
    const auto [X, R] = with_forms(points, quotient::R);
    ASSERT_EQ(R.no_of_members(), X.s());
    ASSERT_EQ(R.no_of_border(), X.no_of_border());
    for (int b = 0; b < R.no_of_border(); ++b) {
      const const_row_view form = R.form(b);
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
    const with_forms set(points);
    const canonical_forms R(quotient::R, set.X);
    for (int b = 0; b < R.no_of_border(); ++b) {
      const const_row_view all = R.form(b);
      const const_row_view form = set.forms.form(b);
      ASSERT_TRUE(std::equal(form.begin(), form.end(), all.end() - std::ssize(form)));
    }
  });
}

TEST(CanonicalFormsProperty, DegreesAreThoseOfTheOrderIdeal) {
  for_each_set([](const std::vector<coordinates>& points) {
    const canonical_forms R = with_forms(points).forms;
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
    const auto [X, R] = with_forms(points);
    for (int i = 0; i < X.s(); ++i) {
      for (int v = 0; v < dim; ++v) {
        const auto [in_O, position] = R.times(i, v);
        const std::vector<monom>& where = in_O ? X.O : X.B;
        ASSERT_EQ(exponents_of(where[position]), times_variable(exponents_of(X.O[i]), v));
      }
    }
  });
}

TEST(CanonicalFormsProperty, AreCongruentToTheirBorderMonomials) {
  int not_zero = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const with_forms set(points);
    const plain_artinian plain(points);
    for (int b = 0; b < set.X.no_of_border(); ++b) {
      const exponents e = exponents_of(set.X.B[b]);
      const int d = degree_of(e);
      const row form = set.form_of(e);
      plain_form difference = set.combined(form, d);
      difference.emplace_back(e, Fp8::prime - 1);
      ASSERT_TRUE(is_zero(plain.residue(difference, d)));
      for (const Fp8 c : form) not_zero += c == 0 ? 0 : 1;
    }
  });
  EXPECT_GT(not_zero, 1000);
}

TEST(CanonicalFormsProperty, AreReachedFromTheGreatestBorderMonomialBelow) {
  for_each_set([](const std::vector<coordinates>& points) {
    const auto [X, R] = with_forms(points);
    for (int b = 0; b < X.no_of_border(); ++b) {
      const exponents e = exponents_of(X.B[b]);
      const auto [border, variable] = R.origin_of(b);
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
    const with_forms set(points);
    const canonical_forms& R = set.forms;
    const plain_artinian plain(points);
    for (int d = 0; d <= R.top_degree(); ++d) {
      row factor(R.dimension(d));
      row sum(R.dimension(d + 1));
      for (row* r : {&factor, &sum}) {
        for (Fp8& x : *r) x = below(random, Fp8::prime);
      }
      const int v = below(random, dim);
      plain_form expected = set.combined(sum, d + 1);
      for (const auto& term : times_variable(set.combined(factor, d), v)) expected.push_back(term);
      R.add_product(sum, factor, d, v);
      ASSERT_EQ(plain.residue(set.combined(sum, d + 1), d + 1), plain.residue(expected, d + 1));
    }
  });
}

}  // namespace
}  // namespace zep::tests
