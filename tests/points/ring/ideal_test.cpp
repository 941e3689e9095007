// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/ideal.h"

#include <gtest/gtest.h>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

TEST(Ideal, StartsWithPolynomialsThatAreZero) {
  const ring_in_force ring(101, 2);
  const ideal I(2);
  EXPECT_EQ(I.no_of_gens(), 2);
  EXPECT_EQ(I.gen, std::vector<polynomial>(2, polynomial(0)));
  EXPECT_EQ(ideal(0).no_of_gens(), 0);
}

}  // namespace
}  // namespace zep::tests
