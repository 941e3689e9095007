// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/monom_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "arith/ordering.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

monom random_monomial(std::mt19937& random, int largest) {
  monom m;
  for (int v = 0; v < dim; ++v) m.set_exp(v, below(random, largest + 1));
  return m;
}

// From the front, until a monomial is greater.
int find_plainly(const std::vector<monom>& list, const monom& t) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (list[i] == t) return static_cast<int>(i);
    if (list[i] > t) return -1;
  }
  return -1;
}

TEST(MonomIndex, OfNothingFindsNothing) {
  const ring_in_force ring;
  EXPECT_EQ(monom_index().find(monom()), -1);
  EXPECT_EQ(monom_index(std::vector<monom>{}).find(monom()), -1);
}

TEST(MonomIndex, DoesNotFindWhatStandsBehindAGreaterMonomial) {
  const ring_in_force ring(101, 3);
  const monom x = variable(0);
  const monom y = variable(1);
  const monom z = variable(2);
  const monom_index unsorted({y, x, z});
  EXPECT_EQ(unsorted.find(y), 0);
  EXPECT_EQ(unsorted.find(x), 1);
  EXPECT_EQ(unsorted.find(z), -1);
}

TEST(MonomIndex, FindsTheFirstOfEqualMonomials) {
  const ring_in_force ring(101, 3);
  const monom x = variable(0);
  EXPECT_EQ(monom_index({monom(), x, x}).find(x), 1);
  EXPECT_EQ(monom_index().find(x), -1);
}

TEST(MonomIndex, FindsWhatASearchFromTheFrontFinds) {
  std::mt19937 random(17);
  int found = 0;
  int hidden = 0;
  for (int n = 2; n <= 5; ++n) {
    for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
      const ring_in_force ring(101, n, order);
      for (const int size : {1, 2, 3, 7, 8, 9, 40, 200}) {
        std::vector<monom> list;
        for (int i = 0; i < size; ++i) list.push_back(random_monomial(random, 3));
        std::sort(list.begin(), list.end());
        // Filling behind the greatest, and one monomial out of order.
        list.resize(size + below(random, 3));
        if (below(random, 2) == 0) std::swap(list.front(), list[below(random, size)]);
        const monom_index index(list);
        for (int i = 0; i < 100; ++i) {
          const monom t = random_monomial(random, 4);
          const int expected = find_plainly(list, t);
          ASSERT_EQ(index.find(t), expected);
          if (expected >= 0) ++found;
          if (expected < 0 && std::find(list.begin(), list.end(), t) != list.end()) ++hidden;
        }
      }
    }
  }
  EXPECT_GT(found, 500);
  EXPECT_GT(hidden, 10);
}

}  // namespace
}  // namespace zep::tests
