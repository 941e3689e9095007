// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/relations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/points/random_rows.h"

namespace zep::tests {
namespace {

using points::relation;
using points::relations_of_degree;

std::vector<int> components_of(const relations_of_degree& R) {
  std::vector<int> components;
  for (const points::module_monomial& t : R.monomials) components.push_back(t.component);
  return components;
}

TEST(Relations, LoseTheirZeros) {
  const row all = {Fp8(0), Fp8(3), Fp8(0), Fp8(0), Fp8(7)};
  EXPECT_EQ(points::without_zeros(all), (relation{{1, 4}, {Fp8(3), Fp8(7)}}));
  EXPECT_EQ(points::without_zeros(row(5)), relation());
  EXPECT_EQ(points::without_zeros({}), relation());
}

TEST(Relations, HaveOneListOfMonomialsInOrder) {
  const ring_in_force ring(101, 2);
  const polynomial x(power_product({1}));
  const polynomial y(power_product({0, 1}));
  const relations_of_degree R = points::relations_of({{y, x}, {x, y}, {y, polynomial(0)}});
  EXPECT_EQ(components_of(R), (std::vector<int>{0, 0, 1, 1}));
  EXPECT_EQ(R.monomials[0].m, power_product({1}));
  EXPECT_EQ(R.monomials[1].m, power_product({0, 1}));
  ASSERT_EQ(R.count(), 3);
  EXPECT_EQ(R.relations[0].position, (std::vector<std::uint32_t>{1, 2}));
  EXPECT_EQ(R.relations[1].position, (std::vector<std::uint32_t>{0, 3}));
  EXPECT_EQ(R.relations[2].position, (std::vector<std::uint32_t>{1}));
}

TEST(Relations, ThatAreZeroHaveEntries) {
  const ring_in_force ring(101, 2);
  const dense_row zeros(3);
  const relations_of_degree R = points::relations_of({zeros});
  EXPECT_TRUE(R.monomials.empty());
  EXPECT_EQ(points::entries_of(R, 0, 3), zeros);
  EXPECT_EQ(points::relations_of({}).count(), 0);
}

TEST(RelationsProperty, LoseTheirZerosOnly) {
  std::mt19937 random(17);
  for (int length = 0; length < 200; ++length) {
    row all(length);
    for (Fp8& c : all) c = Fp8(below(random, 2) * below(random, 101));
    const relation r = points::without_zeros(all);
    ASSERT_EQ(r.position.size(), r.coef.size());
    ASSERT_TRUE(std::is_sorted(r.position.begin(), r.position.end()));
    row again(length);
    for (std::size_t i = 0; i < r.coef.size(); ++i) {
      ASSERT_NE(r.coef[i], 0);
      again[r.position[i]] = r.coef[i];
    }
    ASSERT_EQ(again, all);
  }
}

TEST(RelationsProperty, GiveTheirEntriesBack) {
  for_random_rings([](kind k, std::mt19937& random) {
    const std::vector<int> degrees = random_column_degrees(random);
    std::vector<dense_row> rows;
    for (int j = below(random, 6); j >= 0; --j) rows.push_back(random_row(k, 2, degrees, random));
    const relations_of_degree R = points::relations_of(rows);
    ASSERT_TRUE(std::is_sorted(R.monomials.begin(), R.monomials.end(), points::precedes));
    for (int j = 0; j < R.count(); ++j) {
      ASSERT_EQ(points::entries_of(R, j, static_cast<int>(degrees.size())), rows[j]);
      for (const Fp8 c : R.relations[j].coef) ASSERT_NE(c, 0);
    }
  });
}

}  // namespace
}  // namespace zep::tests
