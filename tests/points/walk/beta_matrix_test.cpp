#include "points/walk/beta_matrix.h"

#include <gtest/gtest.h>

#include "points/walk/separators.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/point_sets.h"
#include "tests/points/shown.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

const std::string heading = "the beta_matrix with respect to the following separators :\n";

using rows = std::vector<std::vector<int>>;

scheme computed(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  beta_matrix(X);
  return X;
}

std::vector<int> beta_row(const scheme& X, int i) {
  std::vector<int> values;
  for (const Fp8 x : X.beta_matrix->row(i)) values.push_back(x.value());
  return values;
}

// Row i: the coefficients of separator i over the order ideal.
rows plain_separators(const std::vector<coordinates>& points, const plain_facts& facts) {
  const int p = Fp8::prime;
  const std::size_t s = points.size();
  rows work;
  for (std::size_t j = 0; j < s; ++j) {
    std::vector<int> row(2 * s, 0);
    for (std::size_t k = 0; k < s; ++k) row[k] = value_at(facts.order_ideal[j], points[k]);
    row[s + j] = 1;
    work.push_back(row);
  }
  for (std::size_t k = 0; k < s; ++k) {
    std::size_t pivot = k;
    while (work[pivot][k] == 0) ++pivot;
    std::swap(work[k], work[pivot]);
    int inverse = 1;
    while (inverse * work[k][k] % p != 1) ++inverse;
    for (int& x : work[k]) x = x * inverse % p;
    for (std::size_t i = 0; i < s; ++i) {
      if (i == k) continue;
      const int c = work[i][k];
      for (std::size_t j = 0; j < 2 * s; ++j) work[i][j] = (work[i][j] + (p - c) * work[k][j]) % p;
    }
  }
  for (std::vector<int>& row : work) row.erase(row.begin(), row.begin() + static_cast<int>(s));
  return work;
}

// Row i: the part of separator i of top degree, over the members of the order ideal of that degree,
// the greatest first.
rows plain_leading_forms(const std::vector<coordinates>& points) {
  const plain_artinian plain(points);
  const std::size_t delta = plain.members(plain.top_degree()).size();
  rows forms = plain_separators(points, plain.facts());
  for (std::vector<int>& row : forms) {
    std::reverse(row.begin(), row.end());
    row.resize(delta);
  }
  return forms;
}

std::vector<int> combined(const std::vector<int>& coefs, const rows& forms,
                          const std::vector<int>& basis) {
  std::vector<int> sum(basis.size(), 0);
  for (std::size_t l = 0; l < basis.size(); ++l) {
    for (std::size_t j = 0; j < sum.size(); ++j) {
      sum[j] = (sum[j] + coefs[l] * forms[basis[l]][j]) % Fp8::prime;
    }
  }
  return sum;
}

// The rank of some rows in their first columns.
int rank_of(const rows& forms, const std::vector<int>& chosen, std::size_t columns) {
  plain_echelon echelon;
  for (const int i : chosen) {
    std::vector<int> row = forms[i];
    row.resize(columns);
    echelon.add(row);
  }
  return echelon.rank();
}

// Column after column, the greatest first, the first point that makes the rank rise.
std::vector<int> plain_basis(const rows& forms) {
  std::vector<int> basis;
  for (std::size_t columns = 1; columns <= forms[0].size(); ++columns) {
    basis.push_back(0);
    while (rank_of(forms, basis, columns) < static_cast<int>(columns)) ++basis.back();
  }
  return basis;
}

TEST(BetaMatrix, OfOnePointIsOne) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(disp_beta_matrix, {{5, 6}}), heading + "f1, \n[ 1 ]\n" + line);
}

TEST(BetaMatrix, OfTheTriangleNamesTwoPointsAndCombinesTheThird) {
  const ring_in_force ring(101, 2);
  // The leading forms are -X - Y, X and Y.
  const std::string rows_of_matrix =
      "[  1   0 ]\n"
      "[        ]\n"
      "[  0   1 ]\n"
      "[        ]\n"
      "[ -1  -1 ]\n";
  EXPECT_EQ(shown(disp_beta_matrix, {{0, 0}, {1, 0}, {0, 1}}),
            heading + "f1, f2, \n" + rows_of_matrix + line);
}

TEST(BetaMatrix, KeepsZeroRowsForPointsWithSeparatorsOfSmallerDegree) {
  const ring_in_force ring(101, 2);
  // Three points on a line and one off it, whose separator is the equation of the line.
  const scheme X = computed({{0, 0}, {0, 1}, {1, 0}, {2, 0}});
  EXPECT_EQ(beta_row(X, 1), std::vector<int>{0});
  EXPECT_EQ(X.basis, std::vector<int>{0});
  EXPECT_EQ(beta_row(X, 0), std::vector<int>{1});
  EXPECT_EQ(beta_row(X, 2), std::vector<int>{99});
  EXPECT_EQ(beta_row(X, 3), std::vector<int>{1});
}

TEST(BetaMatrix, OfNoPointsIsAHeadingWithoutAMatrix) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(disp_beta_matrix, std::vector<coordinates>()), heading + "\n" + line);
}

TEST(BetaMatrix, NamesItsBasisOnOneLineHoweverLong) {
  const ring_in_force ring(101, 7);
  std::mt19937 random(8);
  scheme X = make_set(random_points(36, random));
  const std::string text = shown(disp_beta_matrix, X);
  ASSERT_EQ(X.delta, 28);
  std::string names;
  for (const int i : X.basis) names += "f" + std::to_string(i + 1) + ", ";
  EXPECT_TRUE(text.starts_with(heading + names + "\n[ "));
}

TEST(BetaMatrix, CountsDownTheMembersOfTopDegreeOnStandardError) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}});
  {
    const silence quiet;
    need_sep(X);
  }
  const silence loud;
  beta_matrix(X);
  EXPECT_EQ(loud.err.text(), "calculating beta matrix ...\n[2][1]\n");
  EXPECT_EQ(loud.out.text(), "");
}

TEST(BetaMatrix, ReportsWhatItNeedsBeforeItBegins) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}});
  const silence loud;
  beta_matrix(X);
  EXPECT_EQ(loud.err.text(),
            "calculating triangular sequence ...\n[3][2][1]\n"
            "calculating biorthogonal sequence ...\n[3][2][1]\n"
            "calculating beta matrix ...\n[2][1]\n");
}

TEST(BetaMatrix, LeavesStandardErrorAloneWhenQuiet) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {0, 1}});
  const silence loud;
  verbose = 0;
  beta_matrix(X);
  verbose = 1;
  EXPECT_EQ(loud.err.text(), "");
  EXPECT_EQ(loud.out.text(), line + line);
}

TEST(BetaMatrix, IsMadeOnce) {
  const ring_in_force ring(101, 2);
  scheme X = computed({{0, 0}, {1, 0}, {0, 1}});
  X.beta_matrix = matrix(2, 1);
  X.basis = {6};
  const silence loud;
  std::ostringstream out;
  disp_beta_matrix(out, X);
  EXPECT_EQ(out.str(), heading + "f7, \n[ 0  0 ]\n" + line);
  EXPECT_EQ(loud.err.text() + loud.out.text(), "");
}

TEST(BetaMatrix, MakesTheSeparators) {
  const ring_in_force ring(101, 2);
  const scheme X = computed({{0, 0}, {1, 0}});
  EXPECT_EQ(X.sep, 1);
}

TEST(BetaMatrix, OfMeaninglessPointsHasItsShapeAllTheSame) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    EXPECT_TRUE(shown(disp_beta_matrix, X).starts_with(heading));
    EXPECT_EQ(X.beta_matrix->rows(), X.s);
    EXPECT_EQ(X.beta_matrix->cols(), X.delta);
    EXPECT_EQ(static_cast<int>(X.basis.size()), X.delta);
  });
}

TEST(BetaMatrixProperty, CombinesTheLeadingFormsOfAllSeparators) {
  int zero_rows = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const scheme X = computed(points);
    const rows forms = plain_leading_forms(points);
    ASSERT_EQ(X.beta_matrix->rows(), X.s);
    ASSERT_EQ(static_cast<std::size_t>(X.beta_matrix->cols()), forms[0].size());
    ASSERT_EQ(X.basis.size(), forms[0].size());
    for (int i = 0; i < X.s; ++i) {
      ASSERT_EQ(combined(beta_row(X, i), forms, X.basis), forms[i]);
      ASSERT_EQ(is_zero(beta_row(X, i)), is_zero(forms[i]));
      zero_rows += is_zero(forms[i]) ? 1 : 0;
    }
  });
  EXPECT_GT(zero_rows, 100);
}

TEST(BetaMatrixProperty, TakesTheFirstPointThatServesForEveryMonomial) {
  for_each_set([](const std::vector<coordinates>& points) {
    const scheme X = computed(points);
    ASSERT_EQ(X.basis, plain_basis(plain_leading_forms(points)));
    for (std::size_t l = 0; l < X.basis.size(); ++l) {
      std::vector<int> unit(X.basis.size(), 0);
      unit[l] = 1;
      ASSERT_EQ(beta_row(X, X.basis[l]), unit);
    }
  });
}

}  // namespace
}  // namespace zep::tests
