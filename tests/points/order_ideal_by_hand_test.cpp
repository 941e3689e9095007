// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"
#include "points/ideal/socle.h"
#include "points/module/canonical_module.h"
#include "points/walk/beta_matrix.h"
#include "points/walk/separators.h"
#include "points/walk/uniformity.h"
#include "tests/points/by_hand.h"
#include "tests/points/computed_presentation.h"
#include "tests/points/printed.h"

namespace zep::tests {
namespace {

using texts = std::vector<std::string>;
using degrees = std::vector<int>;

// The numbers are taken modulo 101, where 1/3 is 34.
class TriangleByHand : public ::testing::TestWithParam<term_order> {
 protected:
  const ring_in_force ring_{101, 2, GetParam()};
  const points::order_ideal X_ = put_together(triangle_by_hand());
};

TEST_P(TriangleByHand, HasVariablesThatMultiplyToZero) {
  const canonical_forms R = Can_Lf(X_);
  EXPECT_EQ(R.top_degree(), 1);
  EXPECT_EQ(R.dimension(1), 2);
  ASSERT_EQ(R.no_of_border(), 3);
  for (int b = 0; b < 3; ++b) EXPECT_TRUE(R.form(b).empty());
}

TEST_P(TriangleByHand, IsCutOutByItsThreeQuadrics) {
  texts quadrics = printed(min_Ix(X_, Can_Lf(X_)));
  std::sort(quadrics.begin(), quadrics.end());
  EXPECT_EQ(quadrics, (texts{"X2-36XZ-33YZ", "XY+33XZ+33YZ", "Y2-33XZ-36YZ"}));
}

TEST_P(TriangleByHand, HasTheVariablesAsSocle) {
  EXPECT_EQ(printed(socle(X_, Can_Lf(X_))), (texts{"Y", "X"}));
}

TEST_P(TriangleByHand, HasCayleyBacharachButIsNotGorenstein) {
  const verdicts found = sep(X_, nobody());
  EXPECT_TRUE(found.is_CB);
  EXPECT_EQ(found.is_ar_Go, false);
}

TEST_P(TriangleByHand, HasALastLeadingFormThatIsMinusTheSumOfTheOthers) {
  const leading_forms forms = beta_matrix(X_, nobody());
  EXPECT_EQ(forms.basis, (std::vector<int>{0, 1}));
  EXPECT_EQ(elements_of(forms.beta[0]), row_of({1, 0}));
  EXPECT_EQ(elements_of(forms.beta[1]), row_of({0, 1}));
  EXPECT_EQ(elements_of(forms.beta[2]), row_of({-1, -1}));
  EXPECT_EQ(dependent_separators(forms.beta, 2, nobody()), std::nullopt);
}

TEST_P(TriangleByHand, HasACanonicalModuleWithTwoGeneratorsAndThreeRelations) {
  const presentation w_R = omega(X_, nobody());
  EXPECT_EQ(w_R.pr, (std::vector<int>{1, 2}));
  EXPECT_EQ(w_R.pr_deg, (degrees{0, 2}));
  EXPECT_EQ(w_R.A_d_cols, 3);
  EXPECT_EQ(w_R.A_d_coldeg, (degrees{0, 3}));
  EXPECT_EQ(faults_of(triangle_by_hand_points, presentation_of(w_R)), faults{});
}

INSTANTIATE_TEST_SUITE_P(Orders, TriangleByHand,
                         ::testing::Values(term_order::deglex, term_order::degrevlex));

class LineByHand : public ::testing::Test {
 protected:
  const ring_in_force ring_{101, 2};
  const points::order_ideal X_ = put_together(line_by_hand());
};

TEST_F(LineByHand, HasOneVariableThatIsTwiceTheOther) {
  const canonical_forms R = Can_Lf(X_);
  EXPECT_EQ(R.top_degree(), 2);
  ASSERT_EQ(R.no_of_border(), 4);
  EXPECT_EQ(elements_of(R.form(0)), row_of({2}));
  EXPECT_EQ(elements_of(R.form(1)), row_of({2}));
  EXPECT_TRUE(R.form(2).empty());
  EXPECT_TRUE(R.form(3).empty());
}

TEST_F(LineByHand, IsCutOutByTheLineAndACubic) {
  EXPECT_EQ(printed(min_Ix(X_, Can_Lf(X_))), (texts{"X-2Y", "Y3-3Y2Z+2YZ2"}));
}

TEST_F(LineByHand, HasItsMonomialOfTopDegreeAsSocle) {
  EXPECT_EQ(printed(socle(X_, Can_Lf(X_))), texts{"Y2"});
}

TEST_F(LineByHand, IsGorenstein) {
  const verdicts found = sep(X_, nobody());
  EXPECT_TRUE(found.is_CB);
  EXPECT_EQ(found.is_ar_Go, true);
}

// The leading coefficients are 1/2, -1, 1/2.
TEST_F(LineByHand, HasProportionalLeadingForms) {
  const leading_forms forms = beta_matrix(X_, nobody());
  EXPECT_EQ(forms.basis, std::vector<int>{0});
  EXPECT_EQ(elements_of(forms.beta[0]), row_of({1}));
  EXPECT_EQ(elements_of(forms.beta[1]), row_of({-2}));
  EXPECT_EQ(elements_of(forms.beta[2]), row_of({1}));
  EXPECT_EQ(dependent_separators(forms.beta, 1, nobody()), std::nullopt);
}

TEST_F(LineByHand, HasACanonicalModuleWithOneGeneratorAndTheGeneratorsOfTheIdealAsRelations) {
  const presentation w_R = omega(X_, nobody());
  EXPECT_EQ(w_R.pr, std::vector<int>{2});
  EXPECT_EQ(w_R.A_d_cols, 2);
  EXPECT_EQ(w_R.A_d_coldeg, (degrees{0, 1, 0, 1}));
  EXPECT_EQ(faults_of(line_by_hand_points, presentation_of(w_R)), faults{});
}

}  // namespace
}  // namespace zep::tests
