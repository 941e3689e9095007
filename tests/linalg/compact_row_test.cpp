// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/compact_row.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "tests/draw.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// A row in which about one element of `rarity` is not zero.
row random_row(std::mt19937& random, std::size_t n, int rarity) {
  row result(n);
  for (Fp8& x : result) {
    if (below(random, rarity) == 0) x = Fp8(below(random, Fp8::prime));
  }
  return result;
}

row expanded(const compact_row& compact, std::size_t n) {
  row result(n);
  compact.for_each([&](std::size_t place, Fp8 c) { result[place] = c; });
  return result;
}

std::size_t first_place(const row& r) {
  std::size_t i = 0;
  while (i < r.size() && r[i] == 0) ++i;
  return i;
}

TEST(CompactRow, IsZeroFromTheStart) {
  const compact_row zero;
  EXPECT_TRUE(zero.is_zero());
  EXPECT_TRUE(compact_row(row(5)).is_zero());
  EXPECT_TRUE(compact_row(row()).is_zero());
  row d(3, Fp8(1));
  zero.subtract_from(d, Fp8(1));
  EXPECT_EQ(d, row(3, Fp8(1)));
}

TEST(CompactRow, HoldsWhatTheRowHolds) {
  std::mt19937 random(1);
  const ring_in_force ring;
  for (const int rarity : {1, 2, 3, 4, 5, 8, 50}) {
    for (const std::size_t n : {1U, 2U, 7U, 16U, 100U, 1000U}) {
      const row r = random_row(random, n, rarity);
      const compact_row compact(r);
      EXPECT_EQ(expanded(compact, n), r);
      EXPECT_EQ(compact.is_zero(), first_place(r) == n);
      if (!compact.is_zero()) {
        EXPECT_EQ(compact.pivot(), first_place(r));
      }
    }
  }
}

TEST(CompactRow, IsTheSameFromItsElements) {
  std::mt19937 random(2);
  const ring_in_force ring;
  for (const int rarity : {1, 3, 4, 5, 20}) {
    const row r = random_row(random, 200, rarity);
    std::vector<std::uint32_t> places;
    row values;
    for (std::uint32_t i = 0; i < r.size(); ++i) {
      if (r[i] == 0) continue;
      places.push_back(i);
      values.push_back(r[i]);
    }
    EXPECT_EQ(expanded(compact_row(places, values), r.size()), r);
  }
}

TEST(CompactRow, GivesItsElementsByAscendingPlaces) {
  std::mt19937 random(3);
  const ring_in_force ring;
  for (const int rarity : {2, 20}) {
    const compact_row compact(random_row(random, 300, rarity));
    std::optional<std::size_t> last;
    compact.for_each([&](std::size_t place, Fp8 c) {
      EXPECT_NE(c.value(), 0);
      EXPECT_TRUE(!last || *last < place);
      last = place;
    });
  }
}

TEST(CompactRow, IsSubtractedElementByElement) {
  std::mt19937 random(4);
  for (const int p : {2, 3, 6, 101, 250, 251}) {
    const ring_in_force ring(p);
    for (const int rarity : {1, 4, 30}) {
      const row r = random_row(random, 150, rarity);
      const compact_row compact(r);
      for (int c = 0; c < p; c += 1 + p / 20) {
        row d = random_row(random, 150, 1);
        row expected = d;
        for (std::size_t i = 0; i < d.size(); ++i) expected[i] -= Fp8(c) * r[i];
        compact.subtract_from(d, Fp8(c));
        ASSERT_EQ(d, expected);
      }
    }
  }
}

// The rule, on rows in full length, with a search through all rows before.
void triangulate_plainly(std::vector<row>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t k = 0; k < i;) {
      const std::size_t pivot = first_place(rows[i]);
      if (pivot == rows[i].size()) break;
      if (first_place(rows[k]) != pivot) {
        ++k;
        continue;
      }
      const Fp8 c = rows[i][pivot];
      for (std::size_t j = 0; j < rows[i].size(); ++j) rows[i][j] -= c * rows[k][j];
      k = 0;
    }
    const std::size_t pivot = first_place(rows[i]);
    if (pivot == rows[i].size()) continue;
    const Fp8 inverse = Fp8(1) / rows[i][pivot];
    for (Fp8& x : rows[i]) x *= inverse;
  }
}

TEST(Triangulate, GivesWhatTheRuleGivesOnFullRows) {
  std::mt19937 random(5);
  for (const int p : {2, 3, 4, 6, 101, 250, 251}) {
    const ring_in_force ring(p);
    for (int round = 0; round < 60; ++round) {
      const std::size_t width = 1 + below(random, 40);
      const int rarity = 1 + below(random, 12);
      std::vector<row> expected;
      std::vector<compact_row> rows;
      for (int i = below(random, 30); i > 0; --i) {
        expected.push_back(random_row(random, width, rarity));
        rows.emplace_back(expected.back());
      }
      triangulate_plainly(expected);
      triangulate(rows, width);
      for (std::size_t i = 0; i < rows.size(); ++i)
        ASSERT_EQ(expanded(rows[i], width), expected[i]);
    }
  }
}

TEST(Triangulate, OfNothingIsNothing) {
  std::vector<compact_row> none;
  triangulate(none, 10);
  EXPECT_TRUE(none.empty());
  std::vector<compact_row> narrow(2);
  triangulate(narrow, 0);
  EXPECT_TRUE(narrow[1].is_zero());
}

}  // namespace
}  // namespace zep::tests
