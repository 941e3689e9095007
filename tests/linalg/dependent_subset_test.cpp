// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/dependent_subset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <vector>

#include "reference/matrices.h"
#include "tests/draw.h"
#include "tests/plain_echelon.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

using subset = std::vector<int>;

// One carry of the walk over the k-subsets of s rows, as a clockwork of k digits under the bound s:
// the lowest place moves fastest. False when there is no next subset.
bool advance(subset& c, int s, std::vector<int>& advances) {
  const int k = static_cast<int>(c.size());
  for (int i = 0; i < k; ++i) {
    ++c[i];
    if (i == k - 1) advances.push_back(c[i]);
    if (c[i] != (i == k - 1 ? s : c[i + 1])) return true;
    c[i] = i;
  }
  return false;
}

struct walk_result {
  std::optional<subset> dependent;
  std::vector<int> advances;

  bool operator==(const walk_result&) const = default;
};

// Every subset from scratch.
walk_result plain_walk(const matrix& m, int k) {
  walk_result result;
  subset c(k);
  for (int i = 0; i < k; ++i) c[i] = i;
  do {
    plain_echelon rows;
    for (const int i : c) {
      std::vector<int> entries;
      for (const Fp8 x : m[i]) entries.push_back(x.value());
      rows.add(entries);
    }
    if (rows.rank() < k) {
      result.dependent = c;
      return result;
    }
  } while (advance(c, m.rows(), result.advances));
  return result;
}

walk_result fast_walk(const matrix& m, int k) {
  walk_result result;
  result.dependent =
      first_dependent_subset(m, k, [&](int last) { result.advances.push_back(last); });
  return result;
}

matrix random_matrix(int cols, int rows, std::mt19937& random) {
  matrix m(cols, rows);
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < cols; ++j) m[i][j] = below(random, Fp8::prime);
  }
  return m;
}

TEST(DependentSubset, FindsTheFirstDependentSubsetAndAnnouncesEveryMoveOfTheLastRow) {
  std::mt19937 random(1);
  int dependent = 0;
  int independent = 0;
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p, 3);
    for (int round = 0; round < 150; ++round) {
      const int cols = 1 + below(random, 5);
      const int rows = cols + below(random, 7);
      const matrix m = random_matrix(cols, rows, random);
      for (int k = 1; k <= cols; ++k) {
        const walk_result expected = plain_walk(m, k);
        EXPECT_EQ(fast_walk(m, k), expected);
        ++(expected.dependent ? dependent : independent);
      }
    }
  }
  EXPECT_GT(dependent, 100);
  EXPECT_GT(independent, 100);
}

TEST(DependentSubset, FindsDependenceThatIsHiddenInOnePlace) {
  std::mt19937 random(2);
  const ring_in_force ring(251, 3);
  for (int round = 0; round < 60; ++round) {
    matrix m = random_matrix(4, 10, random);
    const int k = 2 + round % 3;
    // The last row of a random subset becomes the sum of the others.
    std::vector<int> rows = identity_order(10);
    std::shuffle(rows.begin(), rows.end(), random);
    for (int j = 0; j < 4; ++j) {
      Fp8 sum;
      for (int i = 1; i < k; ++i) sum += m[rows[i]][j];
      m[rows[0]][j] = sum;
    }
    EXPECT_EQ(fast_walk(m, k), plain_walk(m, k));
  }
}

TEST(DependentSubset, TakesLargeSubsets) {
  std::mt19937 random(4);
  int dependent = 0;
  int independent = 0;
  for (const int p : {2, 251}) {
    const ring_in_force ring(p, 3);
    for (int round = 0; round < 12; ++round) {
      const int k = 23 + round % 6;
      matrix m = random_matrix(k + round % 3, k + 2, random);
      if (round % 4 == 1) {
        // Only subsets that leave out one of the first rows are independent.
        std::copy(m[0].begin(), m[0].end(), m[2].begin());
      }
      const walk_result expected = plain_walk(m, k);
      EXPECT_EQ(fast_walk(m, k), expected);
      ++(expected.dependent ? dependent : independent);
    }
  }
  EXPECT_GT(dependent, 2);
  EXPECT_GT(independent, 2);
}

TEST(DependentSubset, FindsTheLastOfLargeSubsets) {
  const ring_in_force ring(251, 3);
  std::mt19937 random(6);
  // Rows 2 .. 28 are dependent, and no other 27 rows are.
  matrix m = random_matrix(27, 29, random);
  for (int j = 0; j < 27; ++j) {
    Fp8 sum;
    for (int i = 2; i < 28; ++i) sum += m[i][j];
    m[28][j] = sum;
  }
  const walk_result expected = plain_walk(m, 27);
  ASSERT_TRUE(expected.dependent.has_value());
  EXPECT_EQ(fast_walk(m, 27), expected);
}

TEST(DependentSubset, AgreesWithDeterminants) {
  std::mt19937 random(3);
  const ring_in_force ring(7, 3);
  const std::vector<int> columns = identity_order(3);
  for (int round = 0; round < 200; ++round) {
    const matrix m = random_matrix(3, 6, random);
    const walk_result found = fast_walk(m, 3);
    if (found.dependent) {
      EXPECT_EQ(minor(m, columns, *found.dependent), Fp8(0));
    }
    std::vector<int> advances;
    subset c = {0, 1, 2};
    while (c != found.dependent) {
      EXPECT_NE(minor(m, columns, c), Fp8(0));
      if (!advance(c, 6, advances)) break;
    }
  }
}

TEST(DependentSubset, AgreesWithTheSolutionSpacesOfTheChosenRows) {
  std::mt19937 random(7);
  const ring_in_force ring(3, 3);
  for (int round = 0; round < 100; ++round) {
    const matrix m = random_matrix(5, 8, random);
    const int k = 1 + round % 4;
    const walk_result found = fast_walk(m, k);
    subset c = identity_order(k);
    std::vector<int> advances;
    bool dependent = false;
    do {
      matrix chosen(5, k);
      for (int i = 0; i < k; ++i) {
        std::copy(m[c[i]].begin(), m[c[i]].end(), chosen[i].begin());
      }
      std::vector<int> columns = identity_order(5);
      std::vector<int> rows = identity_order(k);
      dependent = chosen.solve(columns, rows) > 5 - k;
    } while (!dependent && advance(c, 8, advances));
    EXPECT_EQ(found.dependent, dependent ? std::optional(c) : std::nullopt);
  }
}

TEST(DependentSubset, FindsAZeroRow) {
  const ring_in_force ring(101, 3);
  matrix m(2, 4);
  for (const int i : {0, 1, 3}) m[i][i % 2] = 1;
  EXPECT_EQ(fast_walk(m, 1).dependent, subset{2});
  EXPECT_EQ(fast_walk(m, 2).dependent, (subset{0, 2}));
}

TEST(DependentSubset, TakesAllRowsTogether) {
  const ring_in_force ring(101, 3);
  matrix m(3, 3);
  for (int i = 0; i < 3; ++i) m[i][i] = 5;
  const walk_result found = fast_walk(m, 3);
  EXPECT_FALSE(found.dependent.has_value());
  EXPECT_EQ(found.advances, std::vector<int>{3});
}

}  // namespace
}  // namespace zep::tests
