// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/random_points.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "tests/front/transcript.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

std::string points_of(const std::string& typed, int n, const std::string& points) {
  const std::string shown = "scheme A:\nscheme consists of " + std::to_string(n) + " points:\n" +
                            points + "\n" + line + "% ";
  const std::string out = type_in(typed + "A\n").out;
  return out.size() >= shown.size() && out.substr(out.size() - shown.size()) == shown ? "as said"
                                                                                      : out;
}

// The random sets straight from their description: draw all rows, then compare all pairs from the
// start again after every row that was drawn anew.
std::vector<std::vector<int>> plainly_drawn(int n, int highest, int fixed, ACG& gen) {
  RandomInteger coordinate(0, highest, gen);
  std::vector<std::vector<int>> rows(static_cast<std::size_t>(n),
                                     std::vector<int>(static_cast<std::size_t>(dim), 0));
  const auto draw = [&](std::vector<int>& row) {
    for (int& x : row) x = coordinate();
  };
  for (int i = 0; i < n; ++i) {
    std::vector<int>& row = rows[static_cast<std::size_t>(i)];
    if (i >= fixed) draw(row);
    if (i > 0 && i < fixed) row[static_cast<std::size_t>(i - 1)] = 1;
  }
  const auto redraw_one = [&] {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      for (std::size_t k = i + 1; k < rows.size(); ++k) {
        if (rows[i] == rows[k]) {
          draw(rows[k]);
          return true;
        }
      }
    }
    return false;
  };
  while (redraw_one()) {
  }
  return rows;
}

std::string as_text(const std::vector<std::vector<int>>& rows) {
  std::string text;
  for (const auto& row : rows) {
    text += "<1";
    for (const int x : row) text += ":" + std::to_string(x);
    text += ">";
  }
  return text;
}

TEST(Random, DrawsTheSamePointsInEveryRun) {
  EXPECT_EQ(
      points_of("random A 5\n", 5, "<1:32:36:18><1:16:9:37><1:10:48:23><1:43:0:43><1:33:19:42>"),
      "as said");
}

TEST(Random, GoesOnInTheSequenceWithEverySet) {
  EXPECT_EQ(points_of("random B 2\nrandom A 1\n", 1, "<1:10:48:23>"), "as said");
}

TEST(Random, DrawsTheLaterOfTwoEqualPointsAnewUntilAllDiffer) {
  for (const int highest : {1, 2, 4}) {
    const int all = (highest + 1) * (highest + 1) * (highest + 1);
    for (const int n : {2, all / 2, all - 1, all}) {
      const ring_in_force ring(101, 3);
      ACG gen(1234);
      const auto rows = plainly_drawn(n, highest, 0, gen);
      EXPECT_EQ(std::set(rows.begin(), rows.end()).size(), rows.size());
      EXPECT_EQ(
          points_of("range " + std::to_string(highest) + "\nrandom A " + std::to_string(n) + "\n",
                    n, as_text(rows)),
          "as said");
    }
  }
}

TEST(Random2, StartsWithTheOriginAndTheUnitPoints) {
  EXPECT_EQ(points_of("random2 A 1\n", 1, "<1:0:0:0>"), "as said");
  EXPECT_EQ(points_of("random2 A 3\n", 3, "<1:0:0:0><1:1:0:0><1:0:1:0>"), "as said");
  EXPECT_EQ(points_of("random2 A 4\n", 4, "<1:0:0:0><1:1:0:0><1:0:1:0><1:0:0:1>"), "as said");
  EXPECT_EQ(points_of("random2 A 5\n", 5, "<1:0:0:0><1:1:0:0><1:0:1:0><1:0:0:1><1:32:36:18>"),
            "as said");
}

TEST(Random2, NeverDrawsTheFixedPointsAnew) {
  const ring_in_force ring(101, 3);
  ACG gen(1234);
  EXPECT_EQ(points_of("range 1\nrandom2 A 8\n", 8, as_text(plainly_drawn(8, 1, 4, gen))),
            "as said");
}

TEST(Random, RefusesACountBelowOneBeforeAnythingElse) {
  for (const std::string random : {"random", "random2"}) {
    EXPECT_EQ(type_in(random + " A 0\n" + random + " A -5\nlist\n").out,
              "% number of points has to be greater than zero !\n"
              "% number of points has to be greater than zero !\n% % ");
  }
}

TEST(Random, RefusesMorePointsThanThereAre) {
  const std::string refusal = "% not enough points in the current range !\n";
  for (const std::string random : {"random", "random2"}) {
    const std::string out = type_in("range 1\n" + random + " A 9\nlist\n").out;
    EXPECT_EQ(out.substr(out.size() - refusal.size() - 4), refusal + "% % ");
  }
  EXPECT_EQ(type_in("random A 2147483647\n").out, refusal + "% ");
}

TEST(Random, CountsThePointsThatThereAreInHighDimensionsToo) {
  // There are 128^10 = 2^70 points, and 100^26 of them.
  EXPECT_EQ(type_in("quiet\nchar 131\nrange 127\ndim 10\nrandom A 2\nlist\n").out,
            type_in("quiet\nchar 131\nrange 127\ndim 10\n").out + line + "% scheme A\n% ");
  EXPECT_EQ(type_in("quiet\nrange 99\ndim 26\nrandom2 A 28\nlist\n").out,
            type_in("quiet\nrange 99\ndim 26\n").out + line + "% scheme A\n% ");
}

TEST(Random, DrawsFromTheLowerBorderToTheUpperOne) {
  std::istringstream keyboard("A 8 B 9");
  workspace shared;
  session z(shared, keyboard);
  shared.range1 = 7;
  shared.range2 = 8;
  const captured out(std::cout);
  random1(z);
  ASSERT_NE(shared.var.find("A"), nullptr);
  const matrix& P = shared.var.find("A")->object->P();
  ASSERT_EQ(P.rows(), 8);
  for (int i = 0; i < P.rows(); ++i) {
    for (const Fp8 x : P[i]) EXPECT_TRUE(x == 7 || x == 8);
  }
  random1(z);
  EXPECT_EQ(shared.var.find("B"), nullptr);
  EXPECT_EQ(out.text(), line + "not enough points in the current range !\n");
}

TEST(Random, DrawsNothingForASetThatIsRefused) {
  for (const std::string refused : {"A 0", "A x", "a-b 2", "B 2"}) {
    EXPECT_EQ(points_of("random B 1\nrandom " + refused + "\nrandom A 1\n", 1, "<1:16:9:37>"),
              "as said")
        << refused;
  }
  EXPECT_EQ(points_of("range 49\nrandom B 125001\nrange 50\nrandom A 1\n", 1, "<1:32:36:18>"),
            "as said");
}

TEST(Random, ReportsMalformedNumbersAndTheEndOfTheInput) {
  for (const std::string random : {"random", "random2"}) {
    EXPECT_EQ(type_in(random + " A x\nlist\n").out, "% malformed number\nunexpected 'x'\n% % ");
    EXPECT_EQ(type_in(random + " A 99999999999\n").out, "% malformed number\n% ");
    EXPECT_EQ(type_in(random + " A").out, "% unexpected end of input\n");
    EXPECT_EQ(type_in(random + " A -").out, "% unexpected end of input\n");
    EXPECT_EQ(type_in(random).out, "% ");
    EXPECT_EQ(type_in(random + " A 2").out, "% " + line + "% ");
  }
}

TEST(Random, FillsTheWholeRangeQuickly) {
  const std::string typed = "dim 2\nrandom A 2601\n";
  const std::string out = type_in(typed).out;
  EXPECT_EQ(out.substr(out.size() - line.size() - 4), "% " + line + "% ");
}

TEST(Random, LeavesIdentifiersAndGeneratorAsTheyWereWhenInterrupted) {
  std::istringstream keyboard("A 20");
  workspace shared;
  session z(shared, keyboard);
  const captured out(std::cout);
  // Some points are drawn first where checks are counted.
  const interrupt_at_check when(5);
  if (!paranoid) request_interrupt();
  EXPECT_THROW(random1(z), interrupted);
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(shared.var.find("A"), nullptr);
  ACG undisturbed = workspace().gen;
  EXPECT_EQ(shared.gen.draw(), undisturbed.draw());
}

}  // namespace
}  // namespace zep::tests
