// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "tests/points/interrupting.h"

namespace zep::tests {
namespace {

TEST(Interruption, OfAComputationLeavesASetAsItWasWheneverItComes) {
  EXPECT_GT(interrupt_all(all_computations()), 500);
}

// Everything that takes time for each point has a check.
TEST(Interruption, EndsEveryComputation) { interrupt_each_at_its_start(all_computations()); }

// What it needs is kept if that was complete, and is not made again.
TEST(Interruption, LeavesWhatWasComplete) {
  const ring_in_force ring(101, 2);
  told_set set({{0, 0}, {1, 0}, {0, 1}});
  scheme& X = set.X;
  X.Can_Lf();
  X.omega();
  const results before = X.known();
  const auto interrupt = [](int, const form_vectors&) -> bool { throw interrupted(); };
  EXPECT_THROW(X.linom(interrupt, scheme::numbers::count), interrupted);
  EXPECT_EQ(contents(X.known()), contents(before));
  const auto interrupt_late = [](int level, const form_vectors&) {
    if (level == 1) throw interrupted();
  };
  EXPECT_THROW(X.linid(interrupt_late, scheme::numbers::count), interrupted);
  EXPECT_NE(X.known().min_Ix, nullptr);
  EXPECT_NE(X.known().Can_Lf, nullptr);
  EXPECT_FALSE(X.known().strands.linid);
  EXPECT_EQ(X.known().strands.linres[0], (std::vector<int>{0, 0}));
  EXPECT_EQ(X.known().omega, before.omega);
  set.reporter.forget();
  X.omega();
  X.min_Ix();
  EXPECT_EQ(set.reporter.out + set.reporter.err, "");
}

}  // namespace
}  // namespace zep::tests
