// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <utility>

#include "points/record/scheme.h"
#include "tests/points/computing.h"
#include "tests/points/everything.h"

namespace zep::tests {
namespace {

// A ring with a set of its space. Everything about the set is done with the ring in force.
class set_of_a_ring {
 public:
  set_of_a_ring(arith::ring R, const std::vector<coordinates>& points) : ring_(std::move(R)) {
    const arith::ring_in_force in_force(ring_);
    set_ = std::make_unique<told_set>(points);
  }

  // Step k, and what is known, written and told after it.
  std::string take(std::size_t k) {
    const arith::ring_in_force in_force(ring_);
    set_->reporter.forget();
    std::ostringstream given;
    const named_command& computation = all_computations()[k];
    computation.run(given, set_->X);
    return computation.name + given.str() + set_->reporter.out + set_->reporter.err +
           contents(set_->X);
  }

  // The same when only that has changed since which another one has done.
  std::string known() const {
    const arith::ring_in_force in_force(ring_);
    return contents(set_->X);
  }

 private:
  ring ring_;
  std::unique_ptr<told_set> set_;
};

ring ring_of(int p, int n, term_order order) { return {p, n, default_names, order}; }

const ring first_ring = ring_of(101, 2, term_order::degrevlex);
const ring second_ring = ring_of(7, 4, term_order::deglex);

std::vector<coordinates> points_of(const ring& R, int s) {
  const arith::ring_in_force in_force(R);
  std::mt19937 random(59);
  return random_points(s, random);
}

set_of_a_ring first_set() { return {first_ring, points_of(first_ring, 11)}; }
set_of_a_ring second_set() { return {second_ring, points_of(second_ring, 13)}; }

std::vector<std::string> steps_alone(set_of_a_ring set) {
  std::vector<std::string> steps;
  for (std::size_t k = 0; k < all_computations().size(); ++k) steps.push_back(set.take(k));
  return steps;
}

TEST(TwoRings, SetsThatComputeByTurnsAreAsIfAlone) {
  const ring before = current_ring();
  const std::vector<std::string> first_alone = steps_alone(first_set());
  const std::vector<std::string> second_alone = steps_alone(second_set());
  set_of_a_ring A = first_set();
  set_of_a_ring B = second_set();
  for (std::size_t k = 0; k < all_computations().size(); ++k) {
    EXPECT_EQ(A.take(k), first_alone[k]);
    const std::string of_A = A.known();
    EXPECT_EQ(B.take(k), second_alone[k]);
    EXPECT_EQ(A.known(), of_A);
  }
  EXPECT_EQ(current_ring(), before);
}

// One is ahead of the other, and comes to each step from another state of the process.
TEST(TwoRings, SetsThatComputeInAnyOrderAreAsIfAlone) {
  const std::vector<std::string> first_alone = steps_alone(first_set());
  const std::vector<std::string> second_alone = steps_alone(second_set());
  std::mt19937 random(61);
  for (int round = 0; round < 20; ++round) {
    set_of_a_ring A = first_set();
    set_of_a_ring B = second_set();
    std::size_t a = 0;
    std::size_t b = 0;
    while (a < first_alone.size() || b < second_alone.size()) {
      if (b == second_alone.size() || (a < first_alone.size() && below(random, 2) == 0)) {
        ASSERT_EQ(A.take(a), first_alone[a]);
        ++a;
      } else {
        ASSERT_EQ(B.take(b), second_alone[b]);
        ++b;
      }
    }
  }
}

// The guards nest: in the middle of a strand of one set another set of another ring is computed.
TEST(TwoRings, OneSetMayComputeWithinAComputationOfTheOther) {
  const std::vector<std::string> second_alone = steps_alone(second_set());
  const ring_in_force ring(101, 3);
  std::mt19937 random(67);
  const std::vector<coordinates> points = random_points(10, random);
  scheme alone = make_set(points);
  std::ostringstream levels_alone;
  alone.linid([&](int level, const form_vectors& v) { put_level(levels_alone, level, v); },
              scheme::numbers::count);

  scheme X = make_set(points);
  std::ostringstream levels;
  int visits = 0;
  const auto compute_the_other = [&](int level, const form_vectors& v) {
    EXPECT_EQ(steps_alone(second_set()), second_alone);
    put_level(levels, level, v);
    ++visits;
  };
  X.linid(compute_the_other, scheme::numbers::count);
  EXPECT_GT(visits, 2);
  EXPECT_EQ(levels.str(), levels_alone.str());
  EXPECT_EQ(contents(X), contents(alone));
}

// Of one ring, but for the names of the variables: these are nothing that results depend on.
TEST(TwoRings, NamesMayChangeUnderASet) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = {{0, 0}, {1, 0}, {0, 1}, {3, 7}};
  scheme X = make_set(points);
  X.bu_mo();
  {
    arith::ring renamed = current_ring();
    renamed.names.replace(0, 3, "abc");
    const arith::ring_in_force in_force(renamed);
    X.omega();
    X.linid();
  }
  scheme Y = make_set(points);
  Y.omega();
  Y.linid();
  EXPECT_EQ(contents(X), contents(Y));
}

TEST(TwoRingsDeathTest, ASetThatComputesInAnotherRingAbortsTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "only the paranoid build looks";
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}});
  const auto compute_in = [&](int p, int n, term_order order) {
    const ring_in_force other(p, n, order);
    X.bu_mo();
  };
  const char* const broken = "broken: a scheme computes in its ring";
  EXPECT_DEATH(compute_in(103, 2, term_order::degrevlex), broken);
  EXPECT_DEATH(compute_in(101, 3, term_order::degrevlex), broken);
  EXPECT_DEATH(compute_in(101, 2, term_order::deglex), broken);
}

}  // namespace
}  // namespace zep::tests
