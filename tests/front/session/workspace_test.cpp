// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/workspace.h"

#include <gtest/gtest.h>

#include "arith/Fp8.h"
#include "arith/ordering.h"
#include "tests/front/transcript.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

const ring plane_over_F7{7, 2, "abc", term_order::deglex};

// That all that is read of a ring is that of this one.
void expect_in_force(const ring& R) {
  EXPECT_EQ(current_ring(), R);
  EXPECT_EQ(Fp8::prime, R.p);
  EXPECT_EQ(Fp8(R.p - 1) + Fp8(1), Fp8(0));
  EXPECT_EQ(dim, R.n);
  EXPECT_EQ(proj, R.n + 1);
  EXPECT_EQ(monom_ordering_lt, R.order == term_order::deglex ? deglex_lt : degrevlex_lt);
}

TEST(Workspace, PutsTheDefaultRingInForceWhileItLives) {
  const arith::ring_in_force before(plane_over_F7);
  {
    const workspace shared;
    expect_in_force(ring());
  }
  expect_in_force(plane_over_F7);
}

TEST(Workspace, LeavesTheRingBeforeItInForceWhateverCommandsHaveChanged) {
  const arith::ring_in_force before(plane_over_F7);
  {
    workspace shared;
    type_in(shared, "char 31\ndim 5\nidentifiers uvwxyz\ndeglex\n");
    expect_in_force({31, 5, "uvwxyz", term_order::deglex});
  }
  expect_in_force(plane_over_F7);
}

TEST(Workspace, MayLiveInAnother) {
  workspace outer;
  type_in(outer, "char 251\ndim 4\ndeglex\nrandom A 3\nquiet\n");
  const ring of_outer{251, 4, default_names, term_order::deglex};
  EXPECT_EQ(current_ring(), of_outer);
  expect_in_force({251, 4, default_names, term_order::deglex});
  {
    workspace inner;
    expect_in_force(ring());
    type_in(inner, "char 2\ndim 2\n");
    expect_in_force({2, 2, default_names, term_order::degrevlex});
    EXPECT_EQ(inner.var.find("A"), nullptr);
    EXPECT_TRUE(inner.report.is_verbose());
  }
  expect_in_force(of_outer);
  // Its point sets have their meaning again.
  EXPECT_EQ(type_in(outer, "quiet\nhilbertfn A\n").out,
            "% % " + line + "H(n) = 1 3 \n" + line + "% ");
}

TEST(Workspace, StartsWithTheDefaultsWhateverTheOneBeforeHasComeTo) {
  {
    workspace before;
    type_in(before, "random A 2\nrange 9\nquiet\nnonsense\n");
    before.range1 = 3;
    before.prompt.show(false);
    before.stop_on_error = true;
  }
  workspace shared;
  EXPECT_EQ(shared.range1, 0);
  EXPECT_EQ(shared.range2, 50);
  EXPECT_TRUE(shared.report.is_verbose());
  EXPECT_EQ(shared.wrong.number(), 0);
  EXPECT_FALSE(shared.stop_on_error);
  EXPECT_EQ(
      type_in(shared, "list\nrandom A 1\nA\n").out,
      "% % " + line + "% scheme A:\nscheme consists of 1 points:\n<1:32:36:18>\n" + line + "% ");
}

TEST(Workspace, LeavesItsSetsAndSettingsToTheNextSession) {
  workspace shared;
  type_in(shared, "char 7\nrange 2\nquiet\nrandom A 1\nnonsense\nquit\n");
  EXPECT_EQ(type_in(shared, "list\n").out, "% scheme A\n% ");
  EXPECT_EQ(shared.range2, 2);
  EXPECT_FALSE(shared.report.is_verbose());
  EXPECT_EQ(shared.wrong.number(), 1);
  EXPECT_EQ(Fp8::prime, 7);
}

TEST(Workspace, DrawsOtherPointsFromAnotherSeedAndTheSameFromTheSame) {
  const auto drawn = [](std::uint32_t seed) {
    workspace shared(seed);
    return type_in(shared, "random A 5\nA\n").out;
  };
  EXPECT_EQ(drawn(1234), drawn(default_seed));
  EXPECT_EQ(drawn(7), drawn(7));
  EXPECT_NE(drawn(7), drawn(8));
}

}  // namespace
}  // namespace zep::tests
