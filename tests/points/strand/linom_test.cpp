// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linom.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/arith/power_product.h"
#include "tests/points/computed_presentation.h"
#include "tests/points/computing.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

const std::vector<coordinates> three_collinear_points_and_two = {
    {0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {0, 1, 0}, {1, 0, 0}};

const level_visitor to_the_end = [](int, const form_vectors&) { return true; };
const level_visitor relations_only = [](int, const form_vectors&) { return false; };

struct strand {
  std::vector<int> numbers;
  std::string out;
  std::string err;
  // How many vectors each level has, from level 1 on.
  std::vector<int> counts;
};

strand strand_of(const presentation& w_R, const level_visitor& visit = to_the_end) {
  told reporter;
  strand found;
  const auto count_and_visit = [&](int level, const form_vectors& vectors) {
    found.counts.push_back(vectors.count());
    EXPECT_EQ(level, static_cast<int>(found.counts.size()));
    return visit(level, vectors);
  };
  found.numbers = linom_by_pairs(w_R, reporter, count_and_visit);
  found.out = reporter.out;
  found.err = reporter.err;
  return found;
}

TEST(Linom, OfATriangleHasTwoGeneratorsAndThreeRelations) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(computed(triangle));
  EXPECT_EQ(found.out, ".");
  EXPECT_EQ(found.err,
            "w_R has 2 generators in degree 0\n3 syzygies in degree -1 found\n"
            "eliminating syzygies ...\n[1]\n" +
                line);
  EXPECT_EQ(found.numbers, (std::vector<int>{3, 2}));
  EXPECT_EQ(found.counts, std::vector<int>{3});
}

TEST(Linom, WithoutLinearRelationsHasItsGeneratorsAlone) {
  const ring_in_force ring;
  const strand found = strand_of(computed(points_of_frame()));
  EXPECT_EQ(found.err,
            "w_R has 1 generators in degree -1\n0 syzygies in degree -2 found\n\n" + line);
  EXPECT_EQ(found.numbers, (std::vector<int>{0, 0, 1}));
  EXPECT_EQ(found.counts, std::vector<int>{0});
}

TEST(Linom, CountsTheGeneratorsOfLeastDegreeOnly) {
  const ring_in_force ring(101, 3);
  // Generators to Y, X and Z^2.
  const presentation w_R = computed(three_collinear_points_and_two);
  ASSERT_EQ(w_R.no_of_pr(), 3);
  EXPECT_EQ(strand_of(w_R).numbers, (std::vector<int>{1, 2, 1}));
}

// A level behind the last place of the table is told all the same.
TEST(Linom, OfOnePointGoesBeyondTheTable) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(computed({{5, 7}}));
  EXPECT_EQ(found.err,
            "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n"
            "eliminating syzygies ...\n[1]\n1 syzygies in degree -1 found\n\n" +
                line);
  EXPECT_EQ(found.numbers, (std::vector<int>{2, 1}));
  EXPECT_EQ(found.counts, (std::vector<int>{2, 1}));
}

TEST(Linom, OfNoPointsHasNothing) {
  const ring_in_force ring(101, 2);
  for (const presentation& none : {computed({}), presentation()}) {
    const strand found = strand_of(none);
    EXPECT_EQ(found.err,
              "w_R has 0 generators in degree 0\n0 syzygies in degree -1 found\n\n" + line);
    EXPECT_EQ(found.numbers, (std::vector<int>{0, 0}));
  }
}

// That of three points off a line, with the projections to Y and X as generators, written down:
//
//     X   0    Y - Z
//     0   Y    Z - X
presentation presentation_of_triangle() {
  const monom x = projective_variable(0);
  const monom y = projective_variable(1);
  const monom z = projective_variable(2);
  const polynomial zero(0);
  return {{1, 2},
          {variable(1), variable(0)},
          0,
          {polynomial(x), zero, sum_of({{1, y}, {100, z}}),  //
           zero, polynomial(y), sum_of({{100, x}, {1, z}})},
          {0, 3}};
}

TEST(Linom, NeedsNothingButAPresentation) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(presentation_of_triangle());
  EXPECT_EQ(found.numbers, (std::vector<int>{3, 2}));
  EXPECT_EQ(found.out, ".");
  EXPECT_EQ(found.err, strand_of(computed(triangle)).err);
}

// One generator, that of degree 2, with the linear relations X, Y and a quadric; the relations that
// are linear at the other generator do not count.
TEST(Linom, LooksAtTheGeneratorsOfLeastDegreeAndTheirLinearRelations) {
  const ring_in_force ring(101, 2);
  const polynomial x(projective_variable(0));
  const polynomial y(projective_variable(1));
  const polynomial z(projective_variable(2));
  const polynomial zero(0);
  const polynomial square(projective({0, 0, 2}));
  const presentation w_R({0, 3}, {variable(1), projective({2})}, 1,
                         {zero, zero, y, z, x, y, square, zero}, {0, 2, 2});
  const strand found = strand_of(w_R);
  EXPECT_EQ(found.numbers, (std::vector<int>{2, 1}));
  EXPECT_TRUE(
      found.err.starts_with("w_R has 1 generators in degree -1\n2 syzygies in degree -2 found\n"
                            "eliminating syzygies ...\n[1]\n1 syzygies in degree -3 found\n"))
      << found.err;
}

TEST(Linom, GoesNoFurtherThanTheVisitorWants) {
  const ring_in_force ring(101, 2);
  const strand found = strand_of(computed({{5, 7}}), relations_only);
  EXPECT_EQ(found.out, "");
  EXPECT_EQ(found.err, "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n" + line);
  EXPECT_EQ(found.numbers, (std::vector<int>{2, 1}));
  EXPECT_EQ(found.counts, std::vector<int>{2});
}

TEST(Linom, LeavesTheRingAsItWas) {
  const ring_in_force ring(101, 2);
  const arith::ring before = current_ring();
  strand_of(computed(triangle));
  EXPECT_EQ(current_ring(), before);
  EXPECT_EQ(dim, 2);
}

TEST(Linom, IsComputedOnceForASet) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  set.X.linom();
  EXPECT_TRUE(set.X.known().strands.linom);
  EXPECT_EQ(set.X.known().strands.linres[1], (std::vector<int>{3, 2}));
  set.reporter.forget();
  set.X.linom();
  EXPECT_EQ(set.reporter.out + set.reporter.err, "");
}

TEST(Linom, OfASetMakesThePresentationItNeeds) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linom();
  ASSERT_NE(X.known().omega, nullptr);
  EXPECT_EQ(X.known().omega->no_of_pr(), 2);
  EXPECT_EQ(X.known().strands.linres[1], (std::vector<int>{3, 2}));
}

TEST(Linom, OfNoPointsCountsAsComputed) {
  const ring_in_force ring(101, 2);
  told_set set({});
  set.X.linom();
  EXPECT_TRUE(set.X.known().strands.linom);
  EXPECT_EQ(set.X.known().strands.linres[1], (std::vector<int>{0, 0}));
  EXPECT_TRUE(set.reporter.err.ends_with(
      "w_R has 0 generators in degree 0\n0 syzygies in degree -1 found\n\n" + line));
}

TEST(Linom, IsFollowedAnewAndNeedNotCount) {
  const ring_in_force ring(101, 2);
  told_set set({{5, 7}});
  set.X.omega();
  const strand_numbers& strands = set.X.known().strands;
  set.reporter.forget();
  set.X.linom(relations_only, scheme::numbers::stay);
  EXPECT_EQ(set.reporter.err,
            "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n" + line);
  EXPECT_FALSE(strands.linom);
  EXPECT_EQ(strands.linres[1], (std::vector<int>{2, 1}));
  for (int round = 0; round < 2; ++round) {
    set.reporter.forget();
    set.X.linom(to_the_end, scheme::numbers::count);
    EXPECT_TRUE(set.reporter.err.starts_with("w_R has 1 generators"));
    EXPECT_TRUE(strands.linom);
  }
}

TEST(Linom, FollowedUpToTheRelationsEndsTheNumbersThere) {
  const ring_in_force ring(101, 3);
  scheme X = make_set(three_collinear_points_and_two);
  X.linom();
  EXPECT_EQ(X.known().strands.linres[1], (std::vector<int>{1, 2, 1}));
  X.linom(relations_only, scheme::numbers::stay);
  EXPECT_EQ(X.known().strands.linres[1], (std::vector<int>{0, 2, 1}));
  EXPECT_TRUE(X.known().strands.linom);
}

// What is done for one strand leaves the numbers and the mark of the other.
TEST(LinearStrands, AreComputedApart) {
  const ring_in_force ring(101, 3);
  scheme X = make_set(three_collinear_points_and_two);
  const level_action nothing = [](int, const form_vectors&) {};
  X.linid();
  X.linom();
  const strand_numbers& strands = X.known().strands;
  const auto both = strands.linres;
  for (const auto counts : {scheme::numbers::stay, scheme::numbers::count}) {
    X.linid(nothing, counts);
    X.linom(to_the_end, counts);
    EXPECT_EQ(strands.linres, both);
    EXPECT_TRUE(strands.linid);
    EXPECT_TRUE(strands.linom);
  }
  X.linom(relations_only, scheme::numbers::stay);
  EXPECT_EQ(strands.linres[0], both[0]);
  EXPECT_TRUE(strands.linid);

  scheme Y = make_set(three_collinear_points_and_two);
  Y.linid();
  EXPECT_FALSE(Y.known().strands.linom);
  EXPECT_EQ(Y.known().strands.linres[1], std::vector<int>(3));
  scheme Z = make_set(three_collinear_points_and_two);
  Z.linom();
  EXPECT_FALSE(Z.known().strands.linid);
  EXPECT_EQ(Z.known().strands.linres[0], std::vector<int>(3));
}

TEST(Linom, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    X.linom(relations_only, scheme::numbers::stay);
    X.linom(to_the_end, scheme::numbers::count);
    EXPECT_TRUE(X.known().strands.linom);
  });
}

}  // namespace
}  // namespace zep::tests
