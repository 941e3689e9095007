// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/ring.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Taken before any test changes them.
const int dim_at_start = dim;
const int proj_at_start = proj;
const std::string names_at_start(ring_data::names.begin(), ring_data::names.begin() + proj);
const ring ring_at_start = current_ring();

TEST(Ring, StartsWithThreeAffineVariables) {
  EXPECT_EQ(dim_at_start, 3);
  EXPECT_EQ(proj_at_start, 4);
}

TEST(Ring, StartsWithTheFirstOfTheNames) { EXPECT_EQ(names_at_start, "XYZT"); }

TEST(Ring, TheDefaultOneIsInForceAtStart) { EXPECT_EQ(ring_at_start, ring()); }

TEST(Ring, IsTheOneOverF101InDegrevlexByDefault) {
  const ring R;
  EXPECT_EQ(R.p, 101);
  EXPECT_EQ(R.n, 3);
  EXPECT_EQ(R.order, term_order::degrevlex);
}

TEST(Ring, NamesEveryVariableByDefault) {
  EXPECT_EQ(ring().names, "XYZTabcdefghijklmnopqrstuvw");
  EXPECT_EQ(ring().names.size(), static_cast<std::size_t>(max_variables));
}

TEST(Ring, DiffersInEveryPart) {
  const ring R;
  EXPECT_EQ(R, ring());
  EXPECT_NE(R, ring{.p = 7});
  EXPECT_NE(R, ring{.n = 2});
  EXPECT_NE(R, ring{.names = "xyzt"});
  EXPECT_NE(R, ring{.order = term_order::deglex});
}

TEST(Ring, HasOneHomogeneousCoordinateMoreThanAffineVariables) {
  for (int n = 2; n < max_variables; ++n) {
    const ring_in_force ring(101, n);
    EXPECT_EQ(dim, n);
    EXPECT_EQ(proj, n + 1);
  }
}

}  // namespace
}  // namespace zep::tests
