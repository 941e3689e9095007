// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "linalg/matrix.h"
#include "tests/draw.h"
#include "tests/linalg/random_matrices.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Rank by textbook elimination on a table of ints.
int plain_rank(const matrix& m) {
  std::vector<permutation> rows;
  for (int i = 0; i < m.rows(); ++i) {
    permutation row;
    for (const Fp8 x : m[i]) row.push_back(x.value());
    rows.push_back(row);
  }
  std::size_t found = 0;
  for (int j = 0; j < m.cols() && found < rows.size(); ++j) {
    const auto pivot = std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(found), rows.end(),
                                    [j](const permutation& row) { return at(row, j) != 0; });
    if (pivot == rows.end()) continue;
    std::iter_swap(rows.begin() + static_cast<std::ptrdiff_t>(found), pivot);
    const permutation& leader = rows[found];
    for (std::size_t i = found + 1; i < rows.size(); ++i) {
      const int above = at(rows[i], j);
      for (int l = 0; l < m.cols(); ++l) {
        const int cross = at(rows[i], l) * at(leader, j) - above * at(leader, l);
        if (l != j) at(rows[i], l) = (cross % Fp8::prime + Fp8::prime) % Fp8::prime;
      }
      at(rows[i], j) = 0;
    }
    ++found;
  }
  return static_cast<int>(found);
}

// The elimination of `solve` entry by entry: the yardstick for the orders and for every entry.
class plain_solver {
 public:
  plain_solver(matrix& a, permutation& c, permutation& r) : a_(a), c_(c), r_(r) {}

  int run() {
    int d = a_.cols();
    int z = 0;
    for (int k = 0; k < std::min(a_.cols(), a_.rows());) {
      if (!bring_pivot_up(k)) {
        if (k + z >= a_.cols() - 1) break;
        ++z;
        std::swap(at(c_, k), at(c_, a_.cols() - z));
        continue;
      }
      if (--d == 0) return 0;
      eliminate_below(k);
      ++k;
    }
    substitute_back(a_.cols() - d);
    return d;
  }

 private:
  Fp8& entry(int k, int l) { return a_[at(r_, k)][at(c_, l)]; }

  bool bring_pivot_up(int k) {
    if (entry(k, k) != 0) return true;
    for (int i = k + 1; i < a_.rows(); ++i) {
      if (entry(i, k) != 0) {
        std::swap(at(r_, k), at(r_, i));
        return true;
      }
    }
    return false;
  }

  void eliminate_below(int k) {
    for (int j = k + 1; j < a_.cols(); ++j) entry(k, j) /= entry(k, k);
    entry(k, k) = 1;
    for (int i = k + 1; i < a_.rows(); ++i) {
      if (entry(i, k) == 0) continue;
      for (int j = k + 1; j < a_.cols(); ++j) entry(i, j) -= entry(i, k) * entry(k, j);
      entry(i, k) = 0;
    }
  }

  void substitute_back(int rank_found) {
    for (int k = rank_found - 2; k >= 0; --k) {
      for (int j = k + 1; j < rank_found; ++j) {
        for (int l = rank_found; l < a_.cols(); ++l) entry(k, l) -= entry(k, j) * entry(j, l);
        entry(k, j) = 0;
      }
    }
  }

  matrix& a_;
  permutation& c_;
  permutation& r_;
};

void expect_permutation(permutation list) {
  std::sort(list.begin(), list.end());
  ASSERT_EQ(list, identity_order(static_cast<int>(list.size())));
}

// The kernel vector with free unknown c[l] = 1, as callers read it off.
std::vector<Fp8> kernel_vector(const matrix& solved, const permutation& c, const permutation& r,
                               int rank_found, int l) {
  std::vector<Fp8> v(c.size());
  v[static_cast<std::size_t>(at(c, l))] = Fp8(1);
  for (int k = 0; k < rank_found; ++k) {
    v[static_cast<std::size_t>(at(c, k))] = -solved[at(r, k)][at(c, l)];
  }
  return v;
}

void expect_annihilated(const matrix& m, const std::vector<Fp8>& v) {
  for (int i = 0; i < m.rows(); ++i) {
    int sum = 0;
    for (int j = 0; j < m.cols(); ++j) {
      sum += m[i][j].value() * v[static_cast<std::size_t>(j)].value();
    }
    ASSERT_EQ(sum % Fp8::prime, 0) << m;
  }
}

// Runs `check` on random systems of all shapes and densities, with random initial orders.
template <class Check>
void for_random_systems(std::initializer_list<int> primes, Check check) {
  std::mt19937 random(18);
  for (const int p : primes) {
    const ring_in_force ring(p);
    for (int round = 0; round < 600; ++round) {
      matrix m = random_matrix(random, 1 + below(random, 9), 1 + below(random, 9), round % 10);
      if (round % 2 == 0) make_dependent(random, m);
      const bool identity = round % 3 != 0;
      const permutation c = identity ? identity_order(m.cols()) : random_order(random, m.cols());
      const permutation r = identity ? identity_order(m.rows()) : random_order(random, m.rows());
      check(m, c, r);
    }
  }
}

void expect_plain_elimination(const matrix& m, const permutation& c, const permutation& r) {
  matrix expected = m;
  permutation expected_c = c;
  permutation expected_r = r;
  const int d = plain_solver(expected, expected_c, expected_r).run();
  matrix found = m;
  permutation found_c = c;
  permutation found_r = r;
  ASSERT_EQ(found.solve(found_c, found_r), d) << m;
  ASSERT_EQ(found_c, expected_c) << m;
  ASSERT_EQ(found_r, expected_r) << m;
  ASSERT_EQ(found, expected) << m;
}

TEST(MatrixProperty, SolveLeavesOrdersAndEntriesOfTheEliminationEntryByEntry) {
  for_random_systems({2, 3, 101, 251}, expect_plain_elimination);
}

// Rows longer than the words of any processor.
TEST(MatrixProperty, SolveOfLargeSystemsIsTheEliminationEntryByEntry) {
  std::mt19937 random(20);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 40; ++round) {
      const int cols = 60 + below(random, 100);
      const int rows = 10 + below(random, 60);
      matrix m = random_matrix(random, cols, rows, round % 10);
      for (int i = 0; i < 5 * (round % 5); ++i) make_dependent(random, m);
      expect_plain_elimination(m, identity_order(cols), random_order(random, rows));
      expect_plain_elimination(m, random_order(random, cols), identity_order(rows));
    }
  }
}

TEST(MatrixProperty, SolveCountsTheUnknownsBeyondTheRank) {
  // cppcheck-suppress passedByValue ; both are permuted
  for_random_systems({2, 3, 101, 251}, [](const matrix& m, permutation c, permutation r) {
    const int expected = plain_rank(m);
    matrix solved = m;
    ASSERT_EQ(solved.solve(c, r), m.cols() - expected) << m;
    ASSERT_EQ(rank(m), expected) << m;
    expect_permutation(c);
    expect_permutation(r);
  });
}

TEST(MatrixProperty, SolveHoldsABasisOfTheKernel) {
  for_random_systems({2, 3, 101, 251}, [](const matrix& m, permutation c, permutation r) {
    matrix solved = m;
    const int d = solved.solve(c, r);
    const int rank_found = m.cols() - d;
    for (int l = rank_found; l < m.cols(); ++l) {
      expect_annihilated(m, kernel_vector(solved, c, r, rank_found, l));
    }
    for (int k = 0; k < rank_found && d > 0; ++k) {
      for (int j = 0; j < rank_found; ++j) {
        ASSERT_EQ(solved[at(r, k)][at(c, j)], k == j ? 1 : 0) << m;
      }
    }
  });
}

TEST(MatrixProperty, NothingBreaksInACompositeCharacteristic) {
  for_random_systems({4, 6, 250}, [](const matrix& m, permutation c, permutation r) {
    matrix solved = m;
    const int d = solved.solve(c, r);
    ASSERT_GE(d, 0);
    ASSERT_LE(d, m.cols());
    expect_permutation(c);
    expect_permutation(r);
    for (int i = 0; i < m.rows(); ++i) {
      for (const Fp8 x : solved[i]) ASSERT_LT(x.value(), Fp8::prime);
    }
  });
}

}  // namespace
}  // namespace zep::tests
