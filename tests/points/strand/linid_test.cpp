// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linid.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/arith/power_product.h"
#include "tests/points/computing.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

const level_action nothing = [](int, const form_vectors&) {};

struct strand {
  std::vector<int> numbers;
  std::string out;
  std::string err;
  // The lengths of the vectors of each level, how many there are, and how many are not zero.
  std::vector<int> ranks;
  std::vector<int> counts;
  std::vector<int> nonzero;
};

// What follow(reporter, action), which returns the numbers, tells and shows.
template <class Follow>
strand strand_followed(Follow follow) {
  told reporter;
  strand found;
  const auto act = [&](int level, const form_vectors& vectors) {
    EXPECT_EQ(level, static_cast<int>(found.ranks.size()));
    found.ranks.push_back(vectors.rank());
    found.counts.push_back(vectors.count());
    found.nonzero.push_back(vectors.no_of_nonzero());
  };
  found.numbers = follow(reporter, act);
  found.out = reporter.out;
  found.err = reporter.err;
  return found;
}

strand strand_of(const ideal& generators, int alpha) {
  return strand_followed([&](reporter& to, const level_action& act) {
    return linid_by_pairs(generators, alpha, to, act);
  });
}

strand strand_of(const std::vector<coordinates>& points) {
  const strand_starts start(points);
  return strand_followed([&](reporter& to, const level_action& act) {
    return linid(start.min_Ix, start.X, start.A, to, act);
  });
}

TEST(Linid, OfATriangleHasThreeGeneratorsAndTwoSyzygies) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(triangle);
  EXPECT_EQ(found.out, "");
  EXPECT_EQ(found.err,
            "I_X has 3 generators of degree 2\neliminating syzygies ...\n[2][1]\n"
            "2 syzygies in degree 1 found\n\n" +
                line);
  EXPECT_EQ(found.numbers, (std::vector<int>{3, 2}));
  EXPECT_EQ(found.ranks, (std::vector<int>{1, 3}));
}

TEST(Linid, WithoutPairsHasNoSyzygies) {
  const ring_in_force ring(101, 2);
  // Two conics without a common component, up to multiples of Y^2 and X^2.
  const strand found = strand_of({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
  EXPECT_EQ(found.err, "I_X has 2 generators of degree 2\n\n" + line);
  EXPECT_EQ(found.numbers, (std::vector<int>{2, 0}));
}

TEST(Linid, OfNoPointsHasNothing) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(std::vector<coordinates>{});
  EXPECT_EQ(found.err, "I_X has 0 generators of degree 0\n\n" + line);
  EXPECT_EQ(found.numbers, (std::vector<int>{0, 0}));
  EXPECT_EQ(found.counts, std::vector<int>{0});
}

TEST(Linid, LeavesAMarkForWhatIsNoSyzygyWhoeverListens) {
  const ring_in_force ring(101, 2);
  const strand_starts start({{1, 2}, {4, 7}, {5, 3}, {8, 9}});
  told inattentive(false);
  EXPECT_EQ(linid(start.min_Ix, start.X, start.A, inattentive, nothing), (std::vector<int>{2, 0}));
  EXPECT_EQ(inattentive.out, ".");
}

TEST(Linid, HasVectorsAsLongAsTheLevelBeforeHadCandidates) {
  const ring_in_force ring(101, 3);
  const strand found = strand_of({{1, 2, 3},
                                  {4, 5, 6},
                                  {7, 8, 10},
                                  {3, 1, 4},
                                  {2, 7, 1},
                                  {8, 2, 8},
                                  {1, 8, 2},
                                  {8, 4, 5},
                                  {9, 0, 4},
                                  {5, 2, 3}});
  EXPECT_EQ(found.numbers, (std::vector<int>{10, 15, 6}));
  // 18 pairs made 15 syzygies: the vectors of the next level have length 18.
  EXPECT_NE(found.err.find("[18][17]"), std::string::npos);
  ASSERT_GE(found.ranks.size(), 3U);
  EXPECT_EQ(found.ranks[1], 10);
  EXPECT_EQ(found.counts[1], 18);
  EXPECT_EQ(found.nonzero[1], 15);
  EXPECT_EQ(found.ranks[2], 18);
  EXPECT_EQ(found.nonzero[2], 6);
}

// Those of three points off a line, X^2 - XZ, Y^2 - YZ and XY, written down.
ideal ideal_of_triangle() {
  const monom x_2 = projective({2});
  const monom y_2 = projective({0, 2});
  const monom xy = projective({1, 1});
  const monom xz = projective({1, 0, 1});
  const monom yz = projective({0, 1, 1});
  ideal I(3);
  I.gen = {sum_of({{1, xy}}), sum_of({{1, y_2}, {100, yz}}), sum_of({{1, x_2}, {100, xz}})};
  return I;
}

TEST(Linid, NeedsNothingButGenerators) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(ideal_of_triangle(), 2);
  EXPECT_EQ(found.numbers, (std::vector<int>{3, 2}));
  EXPECT_EQ(found.err, strand_of(triangle).err);
}

TEST(Linid, OfFourVariablesIsThatOfTheKoszulComplex) {
  const ring_in_force ring(101, 3);
  ideal I(3);
  I.gen = {sum_of({{1, projective({0, 0, 1})}}), sum_of({{1, projective({0, 1})}}),
           sum_of({{1, projective({1})}})};
  EXPECT_EQ(strand_of(I, 1).numbers, (std::vector<int>{3, 3, 1}));
}

TEST(Linid, TakesTheGeneratorsOfLeastDegreeOnly) {
  const ring_in_force ring(101, 2);
  ideal I(2);
  I.gen = {sum_of({{1, projective({1})}}), sum_of({{1, projective({0, 3})}})};
  const strand found = strand_of(I, 1);
  EXPECT_EQ(found.numbers, (std::vector<int>{1, 0}));
  EXPECT_TRUE(found.err.starts_with("I_X has 1 generators of degree 1\n"));
}

TEST(Linid, LeavesTheRingAsItWas) {
  const ring_in_force ring(101, 2);
  const arith::ring before = current_ring();
  strand_of(triangle);
  EXPECT_EQ(current_ring(), before);
  EXPECT_EQ(dim, 2);
}

TEST(Linid, IsComputedOnceForASet) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  set.X.linid();
  EXPECT_NE(set.reporter.err.find("I_X has 3 generators"), std::string::npos);
  set.reporter.forget();
  set.X.linid();
  EXPECT_EQ(set.reporter.out + set.reporter.err, "");
  EXPECT_TRUE(set.X.known().strands.linid);
  EXPECT_EQ(set.X.known().strands.linres[0], (std::vector<int>{3, 2}));
}

TEST(Linid, OfASetMakesTheMinimalGeneratorsItNeeds) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linid();
  EXPECT_NE(X.known().min_Ix, nullptr);
  EXPECT_EQ(X.known().strands.linres[0], (std::vector<int>{3, 2}));
}

TEST(Linid, OfNoPointsCountsAsComputed) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({});
  X.linid();
  EXPECT_TRUE(X.known().strands.linid);
}

TEST(Linid, IsFollowedAnewAndNeedNotCount) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  set.X.min_Ix();
  const strand_numbers& strands = set.X.known().strands;
  for (int round = 0; round < 2; ++round) {
    set.reporter.forget();
    set.X.linid(nothing, scheme::numbers::stay);
    EXPECT_TRUE(set.reporter.err.starts_with("I_X has 3 generators"));
    EXPECT_FALSE(strands.linid);
    EXPECT_EQ(strands.linres[0], (std::vector<int>{3, 2}));
  }
  for (int round = 0; round < 2; ++round) {
    set.reporter.forget();
    set.X.linid(nothing, scheme::numbers::count);
    EXPECT_TRUE(set.reporter.err.starts_with("I_X has 3 generators"));
    EXPECT_TRUE(strands.linid);
  }
}

TEST(Linid, FollowedAnewLeavesItsMark) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linid();
  X.linid(nothing, scheme::numbers::stay);
  EXPECT_TRUE(X.known().strands.linid);
}

TEST(Linid, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    X.linid(nothing, scheme::numbers::stay);
    X.linid(nothing, scheme::numbers::count);
    EXPECT_TRUE(X.known().strands.linid);
  });
}

}  // namespace
}  // namespace zep::tests
