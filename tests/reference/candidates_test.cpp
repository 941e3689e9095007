// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/candidates.h"

#include <gtest/gtest.h>

#include <iterator>

#include "tests/arith/power_product.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

monom X() { return power_product({1, 0, 0}); }
monom Y() { return power_product({0, 1, 0}); }
monom Z() { return power_product({0, 0, 1}); }

mmm candidate(const monom& t, int n = 0) { return {.t = t, .n = n, .k = 0, .ins = 1}; }

const mmm& item(const list<mmm>& items, int place) { return *std::next(items.begin(), place); }

TEST(Candidates, AddSetLeavesOutWhatIsPresent) {
  const ring_in_force ring;
  list<monom> items;
  add_set(items, X());
  add_set(items, Y());
  add_set(items, X());
  add_set(items, Y());
  ASSERT_EQ(items.no_of_items(), 2);
  EXPECT_EQ(items.first(), X());
  EXPECT_EQ(items.last(), Y());
}

TEST(Candidates, IsElementComparesOverTheCommonSlots) {
  const ring_in_force ring;
  list<monom> items;
  EXPECT_FALSE(is_element(items, X()));
  for (const monom& m : {X(), Y(), Z()}) items.add(m);
  for (const monom& m : {X(), Y(), Z()}) EXPECT_TRUE(is_element(items, m));
  EXPECT_FALSE(is_element(items, power_product({1, 1, 0})));
  EXPECT_TRUE(is_element(items, projective({0, 1, 0, 7})));
  items.add(projective({1, 1, 0, 1}));
  EXPECT_TRUE(is_element(items, projective({1, 1, 0, 1})));
  EXPECT_FALSE(is_element(items, projective({1, 1, 0, 2})));
}

TEST(Candidates, NothingIsAnElementOfAnEmptyList) {
  const ring_in_force ring;
  list<mmm> items;
  mmm m = candidate(power_product({1, 0, 0}));
  EXPECT_FALSE(element(items, m));
  EXPECT_EQ(m.ins, 1);
}

TEST(Candidates, ElementCreditsAMatchInFrontOfTheLast) {
  const ring_in_force ring;
  list<mmm> items;
  items.add(candidate(power_product({1, 0, 0})));
  items.add(candidate(power_product({0, 1, 0})));
  mmm m = candidate(power_product({1, 0, 0}));
  EXPECT_TRUE(element(items, m));
  EXPECT_EQ(item(items, 0).ins, 2);
  EXPECT_EQ(item(items, 1).ins, 1);
  EXPECT_EQ(m.ins, 1);
}

TEST(Candidates, ElementCreditsTheArgumentForAMatchAtTheLast) {
  const ring_in_force ring;
  list<mmm> items;
  items.add(candidate(power_product({1, 0, 0})));
  items.add(candidate(power_product({0, 1, 0})));
  mmm m = candidate(power_product({0, 1, 0}));
  EXPECT_TRUE(element(items, m));
  EXPECT_EQ(item(items, 0).ins, 1);
  EXPECT_EQ(item(items, 1).ins, 1);
  EXPECT_EQ(m.ins, 2);
}

TEST(Candidates, OnlyItemOfAListIsItsLast) {
  const ring_in_force ring;
  list<mmm> items;
  items.add(candidate(power_product({1, 0, 0})));
  mmm m = candidate(power_product({1, 0, 0}));
  EXPECT_TRUE(element(items, m));
  EXPECT_EQ(items.first().ins, 1);
  EXPECT_EQ(m.ins, 2);
}

TEST(Candidates, ElementCreditsTheFirstOfSeveralMatches) {
  const ring_in_force ring;
  list<mmm> items;
  for (int n = 0; n < 3; ++n) items.add(candidate(power_product({1, 0, 0}), n));
  mmm m = candidate(power_product({1, 0, 0}));
  EXPECT_TRUE(element(items, m));
  EXPECT_EQ(item(items, 0).ins, 2);
  EXPECT_EQ(item(items, 1).ins, 1);
  EXPECT_EQ(item(items, 2).ins, 1);
  EXPECT_EQ(m.ins, 1);
}

TEST(Candidates, ElementCreditsNothingWithoutAMatch) {
  const ring_in_force ring;
  list<mmm> items;
  items.add(candidate(power_product({1, 0, 0})));
  items.add(candidate(power_product({0, 1, 0})));
  mmm m = candidate(power_product({0, 0, 1}));
  EXPECT_FALSE(element(items, m));
  EXPECT_EQ(item(items, 0).ins, 1);
  EXPECT_EQ(item(items, 1).ins, 1);
  EXPECT_EQ(m.ins, 1);
}

}  // namespace
}  // namespace zep::tests
