// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/reporter.h"

#include <gtest/gtest.h>

#include <string>

#include "base/interrupt.h"
#include "tests/told.h"

namespace zep::tests {
namespace {

TEST(Progress, TellsItsHeadingWhenItIsMade) {
  told reporter;
  const progress walk(reporter, "points\n");
  EXPECT_EQ(reporter.err, "points\n");
}

TEST(Progress, TellsHeadingCountdownAndEndInOrder) {
  told reporter;
  const progress walk(reporter, "points\n");
  walk.count(12);
  walk.count(3);
  walk.end_line();
  EXPECT_EQ(reporter.err, "points\n[12][3]\n");
  EXPECT_EQ(reporter.out, "");
}

TEST(Progress, TellsWhatItIsGivenToInattentiveReportersToo) {
  told reporter(false);
  const progress walk(reporter, "points\n");
  walk.count(1);
  walk.end_line();
  EXPECT_EQ(reporter.err, "points\n[1]\n");
}

TEST(Progress, CountsDownToOne) {
  told reporter;
  const progress walk(reporter, "");
  walk.count_down(4);
  EXPECT_EQ(reporter.err, "[4][3][2][1]");
}

TEST(Progress, CountsNothingDownFromZeroOrBelow) {
  told reporter;
  const progress walk(reporter, "");
  walk.count_down(0);
  walk.count_down(-3);
  EXPECT_EQ(reporter.err, "");
}

TEST(Progress, CountsNothingDownForAnInattentiveReporter) {
  told reporter(false);
  const progress walk(reporter, "points\n");
  walk.count_down(4);
  walk.end_line();
  EXPECT_EQ(reporter.err, "points\n\n");
}

TEST(Progress, CountdownEndsByAnInterruptBeforeTheNextNumber) {
  told reporter;
  const progress walk(reporter, "");
  request_interrupt();
  EXPECT_THROW(walk.count_down(1000), interrupted);
  EXPECT_EQ(reporter.err, "");
  walk.count_down(2);
  EXPECT_EQ(reporter.err, "[2][1]");
}

// Presses Ctrl-C when it hears a number.
class impatient : public told {
 public:
  explicit impatient(int at) : at_(at) {}

  void count(int remaining) override {
    told::count(remaining);
    if (remaining == at_) request_interrupt();
  }

 private:
  int at_;
};

TEST(Progress, CountdownEndsByAnInterruptThatComesOnTheWay) {
  impatient reporter(998);
  const progress walk(reporter, "");
  EXPECT_THROW(walk.count_down(1000), interrupted);
  EXPECT_EQ(reporter.err, "[1000][999][998]");
}

TEST(Progress, CountdownHasACheckForEachNumber) {
  if (!paranoid) GTEST_SKIP() << "checks are counted in the paranoid build";
  told reporter;
  const progress walk(reporter, "");
  const interrupt_at_check third(3);
  EXPECT_THROW(walk.count_down(9), interrupted);
  EXPECT_EQ(reporter.err, "[9][8]");
}

}  // namespace
}  // namespace zep::tests
