#include "points/record/results_before.h"

#include <gtest/gtest.h>

#include "tests/points/computing.h"
#include "tests/points/everything.h"

namespace zep::tests {
namespace {

TEST(ResultsBefore, TakeBackWhatAnyCommandHasComputed) {
  for_each_of_a_few_sets([](const std::vector<coordinates>& points) {
    for (const named_command& history : histories()) {
      scheme start = make_set(points);
      by([&](std::ostream& out) { history.run(out, start); });
      const std::string before = contents(start);
      for (const named_command& command : all_commands()) {
        SCOPED_TRACE(std::string(command.name) + " after " + history.name);
        scheme X = start;
        const results_before results(X);
        counter = 11;
        by([&](std::ostream& out) { command.run(out, X); });
        results.restore(X);
        EXPECT_EQ(contents(X), before);
      }
    }
  });
}

TEST(ResultsBefore, BringBackTheOutputColumn) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{1, 2}, {3, 4}});
  counter = 7;
  const results_before results(X);
  by([&](std::ostream& out) { separators(out, X); });
  EXPECT_NE(counter, 7);
  results.restore(X);
  EXPECT_EQ(counter, 7);
}

TEST(ResultsBefore, KeepResultsWhereTheyAre) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{1, 2}, {3, 4}, {5, 5}});
  by([&](std::ostream&) { need_sep(X); });
  const Fp8* const separator = X.separator[0];
  const results_before results(X);
  by([&](std::ostream& out) { disp_omegamat(out, X); });
  results.restore(X);
  EXPECT_EQ(X.separator[0], separator);
}

}  // namespace
}  // namespace zep::tests
