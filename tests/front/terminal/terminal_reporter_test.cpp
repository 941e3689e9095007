// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/terminal_reporter.h"

#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <string>

#include "tests/captured.h"
#include "tests/flushes.h"

namespace zep::tests {
namespace {

using telling = std::function<void(reporter&)>;

struct heard {
  std::string out;
  std::string err;

  bool operator==(const heard&) const = default;
};

void PrintTo(const heard& h, std::ostream* to) {
  *to << "out '" << h.out << "' err '" << h.err << "'";
}

heard hear(bool verbose, const telling& tell) {
  const captured out(std::cout);
  const captured err(std::cerr);
  terminal_reporter report;
  report.be_verbose(verbose);
  tell(report);
  return {out.text(), err.text()};
}

heard verbosely(const telling& tell) { return hear(true, tell); }
heard quietly(const telling& tell) { return hear(false, tell); }

TEST(TerminalReporter, IsVerboseUntilItIsToldOtherwise) {
  terminal_reporter report;
  EXPECT_TRUE(report.is_verbose());
  EXPECT_TRUE(report.is_attentive());
  report.be_verbose(false);
  EXPECT_FALSE(report.is_verbose());
  EXPECT_FALSE(report.is_attentive());
  report.be_verbose(true);
  EXPECT_TRUE(report.is_verbose());
  EXPECT_TRUE(report.is_attentive());
}

TEST(TerminalReporter, WritesWordsOnStandardErrorWhileItIsVerbose) {
  const telling say = [](reporter& to) { to.say("words\n"); };
  EXPECT_EQ(verbosely(say), (heard{"", "words\n"}));
  EXPECT_EQ(quietly(say), heard());
}

TEST(TerminalReporter, CountsOnStandardErrorWhileItIsVerbose) {
  const telling count = [](reporter& to) {
    for (const int n : {1000, 2, 1, 0, -3}) to.count(n);
    to.end_of_count();
  };
  EXPECT_EQ(verbosely(count), (heard{"", "[1000][2][1][0][-3]\n"}));
  EXPECT_EQ(quietly(count), heard());
}

TEST(TerminalReporter, DrawsALineBehindAComputationWhetherItIsVerboseOrNot) {
  const telling end = [](reporter& to) { to.end_of_computation(); };
  const heard drawn{std::string(79, '-') + "\n", ""};
  EXPECT_EQ(verbosely(end), drawn);
  EXPECT_EQ(quietly(end), drawn);
}

TEST(TerminalReporter, MarksOnStandardOutputWhetherItIsVerboseOrNot) {
  const telling mark = [](reporter& to) {
    to.mark();
    to.mark();
  };
  EXPECT_EQ(verbosely(mark), (heard{"..", ""}));
  EXPECT_EQ(quietly(mark), (heard{"..", ""}));
}

TEST(TerminalReporter, ShowsAWalkOverSubsetsOnStandardOutputWhileItIsVerbose) {
  const telling advance = [](reporter& to) {
    to.advance(12);
    to.advance(0);
  };
  EXPECT_EQ(verbosely(advance), (heard{"[12][0]", ""}));
  EXPECT_EQ(quietly(advance), heard());
}

TEST(TerminalReporter, PutsAProgressTogether) {
  const telling go_on = [](reporter& to) {
    const progress p(to, "heading :\n");
    p.count_down(3);
    p.count(7);
    p.end_line();
  };
  EXPECT_EQ(verbosely(go_on), (heard{"", "heading :\n[3][2][1][7]\n"}));
  EXPECT_EQ(quietly(go_on), heard());
}

// They are all that is seen of a computation that takes long.
TEST(TerminalReporter, BringsOutEachMarkAndEachStepAtOnce) {
  noted_flushes seen;
  std::streambuf* const before = std::cout.rdbuf(&seen);
  terminal_reporter report;
  report.mark();
  EXPECT_EQ(seen.flushed(), ".");
  report.advance(5);
  EXPECT_EQ(seen.flushed(), ".[5]");
  std::cout.rdbuf(before);
}

}  // namespace
}  // namespace zep::tests
