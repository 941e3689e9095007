// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/result_files.h"

#include <gtest/gtest.h>

#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"
#include "points/walk/beta_matrix.h"
#include "tests/arith/power_product.h"
#include "tests/points/computed_presentation.h"
#include "tests/points/shown.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

ideal generators_of(const std::vector<coordinates>& points) {
  const points::order_ideal X = walked(points);
  return min_Ix(X, Can_Lf(X));
}

// The lines of a file.
std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string row; std::getline(in, row);) lines.push_back(row);
  return lines;
}

std::string file_form(const polynomial& f) {
  return shown([&](std::ostream& out) { f.put(out); });
}

TEST(ResultFileText, OfPointsHasAllTheirCoordinates) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(put_points, rows_of({{2, 3}, {0, 100}})), "3\n2\n1\n2\n3\n1\n0\n-1\n");
  EXPECT_EQ(shown(put_points, rows_of({})), "3\n0\n");
}

TEST(ResultFileText, OfAMatrixHasItsRowsOneAfterTheOther) {
  const ring_in_force ring;
  matrix m(2, 3);
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 2; ++j) m[i][j] = 10 * i + j;
  }
  EXPECT_EQ(shown(text::put_matrix, m), "2\n3\n0\n1\n10\n11\n20\n21\n");
  EXPECT_EQ(shown(text::put_matrix, matrix(0, 0)), "0\n0\n");
  EXPECT_EQ(shown(text::put_matrix, matrix(0, 4)), "0\n4\n");
  EXPECT_EQ(shown(text::put_matrix, beta_matrix(walked({{0, 0, 0}, {1, 0, 0}}), nobody()).beta),
            "1\n2\n1\n-1\n");
}

TEST(ResultFileText, OfATriangleIsKnown) {
  const ring_in_force ring(101, 2);
  const points::order_ideal X = walked(triangle);
  EXPECT_EQ(shown(put_separators, X), "1\n3\n-X-Y+1\nX\nY\n");
  EXPECT_EQ(shown(put_groebner, X), "1\n3\nY2-Y\nXY\nX2-X\n");
  EXPECT_EQ(shown(put_generators, generators_of(triangle)), "1\n3\nXY\nY2-YZ\nX2-XZ\n");
  EXPECT_EQ(shown(text::put_matrix, beta_matrix(X, nobody()).beta), "2\n3\n1\n0\n0\n1\n-1\n-1\n");
}

TEST(ResultFileText, OfAPresentationIsWrittenColumnByColumn) {
  const ring_in_force ring(101, 2);
  const auto x = [](int i) { return polynomial(projective_variable(i)); };
  const presentation w_R(
      {1, 2}, {variable(1), variable(0)}, 0,
      {x(0), polynomial(0), sum_of({{1, projective({0, 1})}, {100, projective({0, 0, 1})}}),  //
       polynomial(0), x(1), x(2)},
      {0, 3});
  EXPECT_EQ(shown(put_presentation, w_R), "2\n3\nX\n0\n0\nY\nY-Z\nZ\n");
}

TEST(ResultFileText, OfNoPointsHasEmptyLists) {
  const ring_in_force ring;
  const points::order_ideal X = walked({});
  EXPECT_EQ(shown(put_separators, X), "1\n0\n");
  EXPECT_EQ(shown(put_groebner, X), "1\n0\n");
  EXPECT_EQ(shown(put_generators, generators_of({})), "1\n0\n");
  EXPECT_EQ(shown(put_generators, ideal(0)), "1\n0\n");
  EXPECT_EQ(shown(put_presentation, computed({})), "0\n0\n");
  EXPECT_EQ(shown(put_presentation, presentation()), "0\n0\n");
  EXPECT_EQ(shown(text::put_matrix, beta_matrix(X, nobody()).beta), "0\n0\n");
}

TEST(ResultFileText, HasNumbersOfRowsAndColumnsAndThenALineForEachEntry) {
  for_each_random_set({.seed = 97, .rounds = 1}, [](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    std::vector<std::string> expected = {"1", std::to_string(X.s())};
    for (int i = 0; i < X.s(); ++i) expected.push_back(file_form(separator_of(X, i)));
    ASSERT_EQ(lines_of(shown(put_separators, X)), expected);

    expected = {"1", std::to_string(X.Ix.no_of_gens())};
    for (int g = 0; g < X.Ix.no_of_gens(); ++g) {
      expected.push_back(file_form(groebner_element(X, g)));
    }
    ASSERT_EQ(lines_of(shown(put_groebner, X)), expected);

    const ideal I = generators_of(points);
    expected = {"1", std::to_string(I.no_of_gens())};
    for (const polynomial& f : I.gen) expected.push_back(file_form(f));
    ASSERT_EQ(lines_of(shown(put_generators, I)), expected);

    const presentation w_R = computed(points);
    expected = {std::to_string(w_R.no_of_pr()), std::to_string(w_R.A_d_cols)};
    for (int j = 0; j < w_R.A_d_cols; ++j) {
      for (int i = 0; i < w_R.no_of_pr(); ++i) expected.push_back(file_form(w_R.entry(i, j)));
    }
    ASSERT_EQ(lines_of(shown(put_presentation, w_R)), expected);

    expected = {std::to_string(dim + 1), std::to_string(points.size())};
    for (const coordinates& point : points) {
      expected.emplace_back("1");
      for (const int x : point)
        expected.push_back(shown([&](std::ostream& out) { out << Fp8(x); }));
    }
    ASSERT_EQ(lines_of(shown(put_points, rows_of(points))), expected);
  });
}

// The one kind of text that has no line length.
TEST(ResultFileText, BreaksNoLines) {
  const ring_in_force ring(251, 2);
  std::vector<coordinates> points;
  for (int t = 1; t <= 30; ++t) points.push_back({t, t * t % 17});
  const std::vector<std::string> lines = lines_of(shown(put_separators, walked(points)));
  EXPECT_EQ(lines.size(), points.size() + 2);
  EXPECT_TRUE(std::any_of(lines.begin(), lines.end(),
                          [](const std::string& row) { return row.size() > 100; }));
}

}  // namespace
}  // namespace zep::tests
