// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/uniformity.h"

#include <gtest/gtest.h>

#include "points/walk/uniformity.h"
#include "tests/points/point_sets.h"
#include "tests/points/shown.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

const std::string heading = "the beta_matrix with respect to the following separators :\n";

leading_forms forms_of(const std::vector<coordinates>& points) {
  return beta_matrix(walked(points), nobody());
}

TEST(DispBetaMatrix, OfOnePointIsOne) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(disp_beta_matrix, forms_of({{5, 6}})), heading + "f1, \n[ 1 ]\n" + line);
}

TEST(DispBetaMatrix, NamesTheBasisAndHasARowForEachPoint) {
  const ring_in_force ring(101, 2);
  const std::string rows_of_matrix =
      "[  1   0 ]\n"
      "[        ]\n"
      "[  0   1 ]\n"
      "[        ]\n"
      "[ -1  -1 ]\n";
  EXPECT_EQ(shown(disp_beta_matrix, forms_of({{0, 0}, {1, 0}, {0, 1}})),
            heading + "f1, f2, \n" + rows_of_matrix + line);
}

TEST(DispBetaMatrix, OfNoPointsIsAHeadingWithoutAMatrix) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(disp_beta_matrix, forms_of({})), heading + "\n" + line);
}

TEST(DispBetaMatrix, ShowsWhateverItIsGiven) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(disp_beta_matrix, leading_forms{matrix(2, 1), {6}}),
            heading + "f7, \n[ 0  0 ]\n" + line);
}

TEST(DispBetaMatrix, NamesItsBasisOnOneLineHoweverLong) {
  const ring_in_force ring(101, 7);
  std::mt19937 random(8);
  const leading_forms forms = forms_of(random_points(36, random));
  ASSERT_EQ(forms.basis.size(), 28U);
  std::string names;
  for (const int i : forms.basis) names += "f" + std::to_string(i + 1) + ", ";
  EXPECT_TRUE(shown(disp_beta_matrix, forms).starts_with(heading + names + "\n[ "));
}

TEST(DispBetaMatrix, OfMeaninglessPointsIsShownAllTheSame) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    EXPECT_TRUE(shown(disp_beta_matrix, forms_of(points)).starts_with(heading));
  });
}

std::string delta_verdict(const text::dependence& found, bool counted) {
  return shown([&](std::ostream& out) { is_delta_uf(out, found, counted); });
}

std::string n_verdict(const text::dependence& found, int n) {
  return shown([&](std::ostream& out) { is_n_uf(out, found, n); });
}

TEST(DeltaUniformity, EndsTheLineOfACountdownBeforeTheVerdict) {
  EXPECT_EQ(delta_verdict(std::nullopt, true), "\nscheme has delta uniform property\n" + line);
  EXPECT_EQ(delta_verdict(std::vector<int>{1, 2}, true),
            "\nlinear dependence between f2, f3, \ntherefore \n"
            "scheme has NOT delta uniform property\n" +
                line);
}

TEST(DeltaUniformity, SaysTheSameWithoutACountdownWithoutTheLineEnd) {
  EXPECT_EQ(delta_verdict(std::nullopt, false), "scheme has delta uniform property\n" + line);
  EXPECT_EQ(delta_verdict(std::vector<int>{1, 2}, false),
            "\nlinear dependence between f2, f3, \ntherefore "
            "scheme has NOT delta uniform property\n" +
                line);
}

TEST(DeltaUniformity, IsDecidedByCayleyBacharachWhenDeltaIsOne) {
  const auto verdict = [](bool is_CB) {
    return shown([&](std::ostream& out) { is_delta_uf_for_delta_one(out, is_CB); });
  };
  EXPECT_EQ(verdict(true),
            "scheme has Cayley-Bacharach property\n"
            "since delta = 1, scheme has also delta uniform property\nand is even 2-uniform\n" +
                line);
  EXPECT_EQ(verdict(false),
            "scheme has NOT Cayley-Bacharach property\n"
            "hence it cannot have delta uniform property\n" +
                line);
}

TEST(NUniformity, OpensItsPositiveVerdictWithALineEnd) {
  EXPECT_EQ(n_verdict(std::nullopt, 1), "\nscheme has 1-uniform property\n" + line);
}

TEST(NUniformity, NamesTheSeparatorsThatDepend) {
  EXPECT_EQ(
      n_verdict(std::vector<int>{1}, 1),
      "\nlinear dependence between f2, \ntherefore scheme has NOT 1-uniform property\n" + line);
  EXPECT_EQ(n_verdict(std::vector<int>{0, 9, 11}, 3),
            "\nlinear dependence between f1, f10, f12, \n"
            "therefore scheme has NOT 3-uniform property\n" +
                line);
}

TEST(NUniformity, IsRefusedForNOutOfRange) {
  EXPECT_EQ(shown([](std::ostream& out) { refuse_n_not_positive(out); }),
            "n-unifomity only defined for n > 0 !!!\n" + line);
  EXPECT_EQ(shown([](std::ostream& out) { refuse_n_above_delta(out); }),
            "sorry, but checking n-unifomity for n > delta is not supported yet\n" + line);
}

}  // namespace
}  // namespace zep::tests
