// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/record/results.h"

#include <gtest/gtest.h>

#include "tests/points/computing.h"
#include "tests/points/everything.h"

namespace zep::tests {
namespace {

TEST(Results, StartWithNothingAndZerosForTheStrands) {
  const results known(4);
  EXPECT_FALSE(known.bu_mo || known.sep || known.beta_matrix || known.Can_Lf || known.min_Ix ||
               known.socle || known.omega);
  EXPECT_FALSE(known.is_CB || known.is_ar_Go);
  EXPECT_FALSE(known.strands.linid || known.strands.linom);
  for (const std::vector<int>& row : known.strands.linres) EXPECT_EQ(row, std::vector<int>(4));
}

TEST(Results, TakeBackWhateverHasBeenComputed) {
  for_each_of_a_few_sets([](const std::vector<coordinates>& points) {
    for (const named_command& history : histories()) {
      scheme start = make_set(points);
      std::ostringstream dropped;
      history.run(dropped, start);
      const std::string before = contents(start);
      for (const named_command& computation : all_computations()) {
        SCOPED_TRACE(std::string(computation.name) + " after " + history.name);
        scheme X = start;
        const results known = X.known();
        computation.run(dropped, X);
        X.restore(known);
        EXPECT_EQ(contents(X), before);
        EXPECT_TRUE(same_results(X.known(), start.known()));
      }
    }
  });
}

// Taken back and made again, a result is the same, and so is what is told on the way.
TEST(Results, AreMadeAgainAfterTheyHaveBeenTakenBack) {
  for_each_of_a_few_sets([](const std::vector<coordinates>& points) {
    told_set set(points);
    const results nothing = set.X.known();
    for (const named_command& computation : all_computations()) {
      SCOPED_TRACE(computation.name);
      std::ostringstream first;
      set.reporter.forget();
      computation.run(first, set.X);
      const std::string before = contents(set.X) + set.reporter.out + set.reporter.err;
      set.X.restore(nothing);
      std::ostringstream second;
      set.reporter.forget();
      computation.run(second, set.X);
      EXPECT_EQ(contents(set.X) + set.reporter.out + set.reporter.err, before);
      EXPECT_EQ(second.str(), first.str());
      set.X.restore(nothing);
    }
  });
}

TEST(Results, StayWhereTheyAreWhenOthersAreTakenBack) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{1, 2}, {3, 4}, {5, 5}});
  X.sep();
  const Fp8* const separators = X.bu_mo().separator[0].data();
  const verdicts* const found = &X.sep();
  const results before = X.known();
  X.omega();
  X.linid();
  X.restore(before);
  EXPECT_EQ(X.bu_mo().separator[0].data(), separators);
  EXPECT_EQ(&X.sep(), found);
}

TEST(Results, OfACopyAreSharedAndThoseToComeItsOwn) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{1, 2}, {3, 4}, {5, 5}});
  X.bu_mo();
  scheme Y = X;
  EXPECT_EQ(&Y.bu_mo(), &X.bu_mo());
  Y.min_Ix();
  EXPECT_EQ(X.known().min_Ix, nullptr);
  EXPECT_NE(Y.known().min_Ix, nullptr);
}

TEST(Results, SayNothingWithAPresentationThatHasNoGenerators) {
  EXPECT_FALSE(has_generators(nullptr));
  EXPECT_FALSE(has_generators(std::make_shared<const presentation>()));
  const ring_in_force ring(101, 2);
  scheme X = make_set({{1, 2}});
  X.omega();
  EXPECT_TRUE(has_generators(X.known().omega));
  scheme none = make_set({});
  none.omega();
  EXPECT_FALSE(has_generators(none.known().omega));
}

}  // namespace
}  // namespace zep::tests
