// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/candidate.h"

#include <gtest/gtest.h>

#include "tests/arith/power_product.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

mmm candidate(const monom& t, int n = 0) { return {.t = t, .n = n, .k = 0, .ins = 1}; }

TEST(Mmm, IsTheStartOfTheWalkAtFirst) {
  const ring_in_force ring;
  const mmm start;
  EXPECT_EQ(sign(start.t), 0);
  EXPECT_EQ(start.t.dim(), 3);
  EXPECT_EQ(start.n, -1);
  EXPECT_EQ(start.k, -1);
  EXPECT_EQ(start.ins, 0);
}

TEST(Mmm, AssignmentTakesMonomialAndNumbers) {
  const ring_in_force ring;
  const mmm source{.t = projective({1, 2, 3, 4}), .n = 5, .k = 6, .ins = 7};
  mmm m;
  m = source;
  EXPECT_EQ(m.t, source.t);
  EXPECT_EQ(m.t.dim(), 4);
  EXPECT_EQ(m.n, 5);
  EXPECT_EQ(m.k, 6);
  EXPECT_EQ(m.ins, 7);
}

TEST(Mmm, ComparisonsLookAtTheMonomialAlone) {
  const ring_in_force ring;
  const mmm small = candidate(power_product({0, 1, 0}), 9);
  const mmm large = candidate(power_product({1, 0, 0}), 1);
  EXPECT_TRUE(small < large);
  EXPECT_FALSE(small > large);
  EXPECT_TRUE(large > small);
  EXPECT_FALSE(small == large);
  EXPECT_TRUE(small == candidate(small.t, 3));
  EXPECT_FALSE(small < candidate(small.t, 3));
  EXPECT_FALSE(small > candidate(small.t, 3));
  const mmm reached_otherwise{.t = small.t, .n = 9, .k = 2, .ins = 3};
  EXPECT_TRUE(small == reached_otherwise);
  EXPECT_FALSE(small < reached_otherwise || small > reached_otherwise);
}

TEST(Mmm, ComparisonsOfProjectiveMonomialsLookAtTheHomogenisingVariable) {
  const ring_in_force ring;
  const mmm once = candidate(projective({1, 0, 0, 1}));
  const mmm twice = candidate(projective({1, 0, 0, 2}));
  EXPECT_FALSE(once == twice);
  EXPECT_TRUE(once < twice);
  EXPECT_TRUE(twice > once);
  EXPECT_TRUE(once == candidate(power_product({1, 0, 0})));
}

TEST(Mmm, ComparisonsFollowTheOrderInForce) {
  const ring_in_force ring;
  const mmm xz = candidate(power_product({1, 0, 1}));
  const mmm yy = candidate(power_product({0, 2, 0}));
  EXPECT_TRUE(xz < yy);
  const ring_in_force deglex(101, 3, term_order::deglex);
  EXPECT_TRUE(xz > yy);
  EXPECT_TRUE(candidate(projective({1, 0, 0, 1})) < candidate(projective({1, 0, 0, 2})));
}

}  // namespace
}  // namespace zep::tests
