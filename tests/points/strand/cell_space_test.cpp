// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/cell_space.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/draw.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

std::vector<const_row_view> views(const std::vector<row>& rows) {
  return {rows.begin(), rows.end()};
}

TEST(CellSpace, KnowsItsCoordinatesByPlace) {
  const ring_in_force ring(101);
  cell_space L(4, 2);
  L.set_coordinate(3, 0);
  L.set_coordinate(1, 1);
  EXPECT_EQ(L.dimension(), 2);
  EXPECT_EQ(L.coordinate(3), 0);
  EXPECT_EQ(L.coordinate(1), 1);
  EXPECT_EQ(L.coordinate(0), -1);
}

TEST(CellSpace, AddsCoordinatesAndOtherFunctionalsWithTheirSigns) {
  const ring_in_force ring(7);
  cell_space L(4, 2);
  L.set_coordinate(3, 0);
  L.set_coordinate(1, 1);
  L.set_functional(2, row_of({2, 5}));
  const Fp8 plus(1);
  const Fp8 minus = -Fp8(1);
  // Nothing is named at place 0.
  const std::vector<cell_space::summand> summands = {
      {3, 0, plus}, {1, 2, minus}, {2, 1, plus}, {2, 2, minus}, {0, 1, plus}};
  const std::vector<row> functionals = {row_of({1, 0, 0}), row_of({0, 1, 0}), row_of({3, 4, 6})};
  const std::vector<row> sums = L.sums(summands, views(functionals));
  ASSERT_EQ(sums.size(), 3U);
  EXPECT_EQ(sums[0], row_of({1, 0}));
  EXPECT_EQ(sums[1], row_of({2, 5}));
  // 3 * (1, 0) - 6 * (0, 1) + (4 - 6) * (2, 5).
  EXPECT_EQ(sums[2], row_of({3 - 4, -6 - 10}));
}

TEST(CellSpace, OfDimensionZeroHasEmptyFunctionals) {
  const ring_in_force ring(101);
  const cell_space L(0, 0);
  const std::vector<row> sums = L.sums({}, views({row_of({1, 2})}));
  ASSERT_EQ(sums.size(), 1U);
  EXPECT_TRUE(sums.front().empty());
  EXPECT_TRUE(L.sums({}, {}).empty());
}

// So many functionals that products go in tiles.
TEST(CellSpace, AddsTheSameForManyFunctionalsAsForEach) {
  std::mt19937 random(1);
  const ring_in_force ring(251);
  const auto random_row = [&](int n) {
    row r(static_cast<std::size_t>(n));
    for (Fp8& x : r) x = below(random, Fp8::prime);
    return r;
  };
  cell_space L(60, 30);
  for (int k = 0; k < 30; ++k) L.set_coordinate(static_cast<std::size_t>(k), k);
  for (std::size_t place = 30; place < 60; ++place) L.set_functional(place, random_row(30));
  std::vector<cell_space::summand> summands;
  for (std::size_t place = 0; place < 60; ++place) {
    summands.push_back({place, below(random, 40), place % 2 == 0 ? Fp8(1) : -Fp8(1)});
  }
  std::vector<row> functionals;
  for (int i = 0; i < 50; ++i) functionals.push_back(random_row(40));
  const std::vector<row> sums = L.sums(summands, views(functionals));
  for (std::size_t i = 0; i < functionals.size(); ++i) {
    EXPECT_EQ(L.sums(summands, views({functionals[i]})).front(), sums[i]);
  }
}

}  // namespace
}  // namespace zep::tests
