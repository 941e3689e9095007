// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/separator_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

#include "tests/draw.h"
#include "tests/points/point_sets.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

using rows = std::vector<row>;

std::vector<bool> joined(const std::vector<separator_table::verdict>& verdicts) {
  std::vector<bool> flags;
  for (const separator_table::verdict& v : verdicts) flags.push_back(v.joined);
  return flags;
}

TEST(SeparatorTable, WithoutMembersHasSeparatorsOfZeros) {
  const ring_in_force ring(101, 2);
  separator_table table(2);
  EXPECT_TRUE(table.take({}).empty());
  EXPECT_EQ(table.separators(), matrix(2, 2));
  EXPECT_EQ(separator_table(0).separators().rows(), 0);
}

// 1 and X at the points 5 and 7 of a line: (7 - X) / 2 and (X - 5) / 2.
TEST(SeparatorTable, OfTwoPointsOfALineHoldsTheLinesBetweenThem) {
  const ring_in_force ring(101, 2);
  separator_table table(2);
  EXPECT_EQ(joined(table.take({row_of({1, 1}), row_of({5, 7})})), (std::vector<bool>{true, true}));
  const Fp8 half = Fp8(1) / Fp8(2);
  const matrix f = table.separators();
  EXPECT_EQ(f[0][0], Fp8(7) * half);
  EXPECT_EQ(f[0][1], -half);
  EXPECT_EQ(f[1][0], -Fp8(5) * half);
  EXPECT_EQ(f[1][1], half);
}

// X^2 - 12 X + 35 vanishes at 5 and 7.
TEST(SeparatorTable, TellsWhatAMonomialLacksToVanish) {
  const ring_in_force ring(101, 2);
  separator_table table(2);
  table.take({row_of({1, 1})});
  table.take({row_of({5, 7})});
  const auto verdicts = table.take({row_of({25, 49})});
  EXPECT_FALSE(verdicts[0].joined);
  EXPECT_EQ(verdicts[0].tail, row_of({35, -12}));
}

TEST(SeparatorTable, LetsNoRowOfZerosJoin) {
  const ring_in_force ring(101, 2);
  separator_table table(3);
  const auto verdicts = table.take({row_of({0, 0, 0}), row_of({0, 4, 0}), row_of({0, 0, 0})});
  EXPECT_EQ(joined(verdicts), (std::vector<bool>{false, true, false}));
  EXPECT_TRUE(verdicts[0].tail.empty());
  EXPECT_EQ(verdicts[2].tail, row_of({0}));
}

TEST(SeparatorTable, GivesAPointThatIsNoPivotASeparatorOfZeros) {
  const ring_in_force ring(101, 2);
  separator_table table(3);
  table.take({row_of({1, 1, 1}), row_of({6, 2, 2})});
  const matrix f = table.separators();
  for (int k = 0; k < 3; ++k) EXPECT_EQ(f[2][k], Fp8(0));
}

TEST(SeparatorTable, SurvivesRowsWithoutInversesInACompositeCharacteristic) {
  const ring_in_force ring(6, 2);
  separator_table table(3);
  const auto verdicts = table.take({row_of({2, 4, 0}), row_of({3, 3, 3}), row_of({1, 5, 2}),
                                    row_of({5, 1, 1}), row_of({4, 4, 3})});
  const auto found = joined(verdicts);
  EXPECT_LE(std::count(found.begin(), found.end(), true), 3);
}

// Rows of values of which every third or so depends on those before.
rows dependent_rows(int s, std::mt19937& random) {
  rows drawn;
  for (int i = 0; i < s + s / 2 + 2; ++i) {
    row r(s);
    for (Fp8& value : r) value = below(random, Fp8::prime);
    if (i > 0 && below(random, 3) == 0) {
      std::fill(r.begin(), r.end(), Fp8(0));
      for (const row& before : drawn) {
        const Fp8 c(below(random, Fp8::prime));
        for (int x = 0; x < s; ++x) r[x] += c * before[x];
      }
    }
    drawn.push_back(r);
  }
  return drawn;
}

// Takes the rows so many at a time.
std::vector<separator_table::verdict> take_in_batches(separator_table& table, const rows& values,
                                                      std::size_t batch) {
  std::vector<separator_table::verdict> all;
  for (std::size_t i = 0; i < values.size(); i += batch) {
    const std::size_t end = std::min(values.size(), i + batch);
    auto taken = table.take({values.begin() + static_cast<std::ptrdiff_t>(i),
                             values.begin() + static_cast<std::ptrdiff_t>(end)});
    std::move(taken.begin(), taken.end(), std::back_inserter(all));
  }
  return all;
}

// Each row that joined is independent of those before, and no other one.
void expect_rank_decisions(const rows& values,
                           const std::vector<separator_table::verdict>& verdicts) {
  plain_echelon echelon;
  for (std::size_t i = 0; i < values.size(); ++i) {
    std::vector<int> plain;
    for (const Fp8 value : values[i]) plain.push_back(value.value());
    ASSERT_EQ(verdicts[i].joined, echelon.add(plain));
  }
}

// With its tail, each row that did not join vanishes.
void expect_relations(const rows& values, const std::vector<separator_table::verdict>& verdicts) {
  rows members;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (verdicts[i].joined) {
      members.push_back(values[i]);
      continue;
    }
    ASSERT_EQ(verdicts[i].tail.size(), members.size());
    row sum = values[i];
    for (std::size_t k = 0; k < members.size(); ++k) {
      for (std::size_t x = 0; x < sum.size(); ++x) sum[x] += verdicts[i].tail[k] * members[k][x];
    }
    ASSERT_EQ(sum, row(sum.size()));
  }
}

TEST(SeparatorTable, DecidesRowByRowHoweverManyAreTakenAtOnce) {
  std::mt19937 random(5);
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p, 2);
    for (const int s : {1, 2, 7, 40, 70}) {
      const rows values = dependent_rows(s, random);
      for (const std::size_t batch : {1U, 2U, 3U, 16U, 200U}) {
        separator_table table(s);
        const auto verdicts = take_in_batches(table, values, batch);
        ASSERT_NO_FATAL_FAILURE(expect_rank_decisions(values, verdicts));
        ASSERT_NO_FATAL_FAILURE(expect_relations(values, verdicts));
      }
    }
  }
}

// The row of separator i times the values of the members.
TEST(SeparatorTable, HoldsForEachPivotWhatIsOneThereAndZeroAtTheOthers) {
  std::mt19937 random(6);
  const ring_in_force ring(251, 2);
  const int s = 50;
  rows values = dependent_rows(s, random);
  values.resize(40);
  separator_table table(s);
  const auto verdicts = table.take(values);
  rows members;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (verdicts[i].joined) members.push_back(values[i]);
  }
  const matrix f = table.separators();
  std::vector<row> found(s, row(s));
  std::vector<int> pivots;
  for (int i = 0; i < s; ++i) {
    if (f[i].end() != std::find_if(f[i].begin(), f[i].end(), [](Fp8 c) { return c != 0; })) {
      pivots.push_back(i);
    }
    for (std::size_t k = 0; k < members.size(); ++k) {
      for (int x = 0; x < s; ++x) found[i][x] += f[i][static_cast<int>(k)] * members[k][x];
    }
  }
  ASSERT_EQ(pivots.size(), members.size());
  for (const int i : pivots) {
    for (const int x : pivots) EXPECT_EQ(found[i][x], Fp8(i == x ? 1 : 0));
  }
}

}  // namespace
}  // namespace zep::tests
