// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/beta_matrix.h"

#include <gtest/gtest.h>

#include "tests/points/plain_artinian.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

using rows = std::vector<std::vector<int>>;

leading_forms computed(const std::vector<coordinates>& points) {
  return beta_matrix(walked(points), nobody());
}

std::vector<int> beta_row(const leading_forms& forms, int i) {
  std::vector<int> values;
  for (const Fp8 x : forms.beta[i]) values.push_back(x.value());
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
  const leading_forms forms = computed({{5, 6}});
  EXPECT_EQ(forms.basis, std::vector<int>{0});
  EXPECT_EQ(beta_row(forms, 0), std::vector<int>{1});
}

TEST(BetaMatrix, OfTheTriangleNamesTwoPointsAndCombinesTheThird) {
  const ring_in_force ring(101, 2);
  // The leading forms are -X - Y, X and Y.
  const leading_forms forms = computed({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(forms.basis, (std::vector<int>{0, 1}));
  EXPECT_EQ(beta_row(forms, 0), (std::vector<int>{1, 0}));
  EXPECT_EQ(beta_row(forms, 1), (std::vector<int>{0, 1}));
  EXPECT_EQ(beta_row(forms, 2), (std::vector<int>{100, 100}));
}

TEST(BetaMatrix, KeepsZeroRowsForPointsWithSeparatorsOfSmallerDegree) {
  const ring_in_force ring(101, 2);
  // Three points on a line and one off it, whose separator is the equation of the line.
  const leading_forms X = computed({{0, 0}, {0, 1}, {1, 0}, {2, 0}});
  EXPECT_EQ(beta_row(X, 1), std::vector<int>{0});
  EXPECT_EQ(X.basis, std::vector<int>{0});
  EXPECT_EQ(beta_row(X, 0), std::vector<int>{1});
  EXPECT_EQ(beta_row(X, 2), std::vector<int>{99});
  EXPECT_EQ(beta_row(X, 3), std::vector<int>{1});
}

TEST(BetaMatrix, OfNoPointsIsEmpty) {
  const ring_in_force ring(101, 2);
  const leading_forms forms = computed({});
  EXPECT_EQ(forms.beta, matrix(0, 0));
  EXPECT_TRUE(forms.basis.empty());
}

TEST(BetaMatrix, TellsACountdownOfTheMembersOfTopDegree) {
  const ring_in_force ring(101, 2);
  told reporter;
  beta_matrix(walked({{0, 0}, {1, 0}, {0, 1}}), reporter);
  EXPECT_EQ(reporter.err, "calculating beta matrix ...\n[2][1]\n");
  EXPECT_EQ(reporter.out, "");
}

TEST(BetaMatrix, OfMeaninglessPointsHasItsShapeAllTheSame) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const leading_forms forms = beta_matrix(X, nobody());
    EXPECT_EQ(forms.beta.rows(), X.s());
    EXPECT_EQ(forms.beta.cols(), X.H.delta);
    EXPECT_EQ(static_cast<int>(forms.basis.size()), X.H.delta);
  });
}

TEST(BetaMatrixProperty, CombinesTheLeadingFormsOfAllSeparators) {
  int zero_rows = 0;
  for_each_set([&](const std::vector<coordinates>& points) {
    const leading_forms X = computed(points);
    const rows forms = plain_leading_forms(points);
    ASSERT_EQ(X.beta.rows(), std::ssize(points));
    ASSERT_EQ(static_cast<std::size_t>(X.beta.cols()), forms[0].size());
    ASSERT_EQ(X.basis.size(), forms[0].size());
    for (int i = 0; i < X.beta.rows(); ++i) {
      ASSERT_EQ(combined(beta_row(X, i), forms, X.basis), forms[i]);
      ASSERT_EQ(is_zero(beta_row(X, i)), is_zero(forms[i]));
      zero_rows += is_zero(forms[i]) ? 1 : 0;
    }
  });
  EXPECT_GT(zero_rows, 100);
}

TEST(BetaMatrixProperty, TakesTheFirstPointThatServesForEveryMonomial) {
  for_each_set([](const std::vector<coordinates>& points) {
    const leading_forms X = computed(points);
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
