// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/point_entry.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "arith/division_by_zero.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

const std::string enter = "% enter number of points : ";

// A point file that lives as long as the object.
class point_file {
 public:
  explicit point_file(const std::string& contents)
      : name_(std::filesystem::temp_directory_path() /
              ("zep-points-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
               ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
    std::ofstream(name_) << contents;
  }
  ~point_file() { std::filesystem::remove(name_); }
  point_file(const point_file&) = delete;
  point_file& operator=(const point_file&) = delete;

  std::string name() const { return name_.string(); }

 private:
  std::filesystem::path name_;
};

// What `scheme A` prints for a file with these contents, and then `list`.
transcript read_file(const std::string& contents) {
  const point_file file(contents);
  return type_in("scheme A " + file.name() + "\nlist\n");
}

const std::string malformed_file = "% enter filename : malformed point file\n" + line + "% % ";

TEST(Get, DividesByTheFirstCoordinateAndEchoes) {
  EXPECT_EQ(type_in("get A\n2\n2 4 6 8\n1 50 51 3/2\nlist\n").out,
            enter + "1. point entered : <1:2:3:4>\n2. point entered : <1:50:-50:-49>\n" +
                "% scheme A\n% ");
}

TEST(Get, DropsOneCharacterBehindTheFirstCoordinate) {
  EXPECT_EQ(type_in("get A 1\n1:2 3 4\n").out, enter + "1. point entered : <1:2:3:4>\n% ");
  EXPECT_EQ(type_in("get A 1\n1\n2\n3\n4\n").out, enter + "1. point entered : <1:2:3:4>\n% ");
  EXPECT_EQ(type_in("get A 1\n1x2 3 4\n").out, enter + "1. point entered : <1:2:3:4>\n% ");
  EXPECT_EQ(type_in("get A 1\n1::2 3 4\n").out,
            enter + "malformed number\nunexpected ':2 3 4'\n% ");
}

TEST(Get, TreatsAFirstCoordinateThatIsZeroInTheFieldAsOne) {
  const std::string warning =
      "first coordinate is expected to be different from zero\n"
      "first coordinate treated as '1'\n";
  const transcript t = type_in("get A 3\n0 2 3 4\n202 5 6 7\n101/3 1 1 1\n");
  EXPECT_EQ(t.out, enter +
                       "1. point entered : <1:2:3:4>\n2. point entered : <1:5:6:7>\n"
                       "3. point entered : <1:1:1:1>\n% ");
  EXPECT_EQ(t.err, warning + warning + warning);
}

TEST(Get, ReportsAMalformedNumberAndWhatIsLeftOfTheLine) {
  EXPECT_EQ(type_in("get A x\nlist\n").out, enter + "malformed number\nunexpected 'x'\n% % ");
  EXPECT_EQ(type_in("get A 99999999999 1\nlist\n").out,
            enter + "malformed number\nunexpected '1'\n% % ");
  EXPECT_EQ(type_in("get A 2\n1 2 3 4\n1 2 -y 4\nlist\n").out,
            enter + "1. point entered : <1:2:3:4>\nmalformed number\nunexpected 'y 4'\n% % ");
  EXPECT_EQ(type_in("get A 1\n1 2/x 3 4\n").out,
            enter + "malformed number\nunexpected 'x 3 4'\n% ");
}

TEST(Get, ReportsTheEndOfTheInputAndStops) {
  for (const std::string typed :
       {"get A", "get A ", "get A -", "get A 1\n", "get A 1\n1", "get A 1\n1 2 3",
        "get A 1\n1 2 3 ", "get A 1\n1 2 3 4/", "get A 1\n1 2 3 4/ -"}) {
    EXPECT_EQ(type_in(typed).out, enter + "unexpected end of input\n") << typed;
  }
}

TEST(Get, IsDroppedWithoutAWordWhenTheNameIsMissing) { EXPECT_EQ(type_in("get \n").out, "% "); }

TEST(Get, TakesALastNumberThatEndsTheInput) {
  EXPECT_EQ(type_in("get A 1\n1 2 3 4/3").out, enter + "1. point entered : <1:2:3:35>\n% ");
}

TEST(Get, MakesASetWithoutPointsForACountBelowOne) {
  for (const std::string count : {"0", "-3", "-2147483648"}) {
    EXPECT_EQ(type_in("get A " + count + "\nA\n").out,
              enter + "% scheme A:\nscheme consists of 0 points:\n\n" + line + "% ");
  }
}

TEST(Get, KeepsOnlyWhatWasReadOfAHugeCount) {
  EXPECT_EQ(type_in("get A 2147483647\n1 2 3 4\n").out,
            enter + "1. point entered : <1:2:3:4>\nunexpected end of input\n");
}

TEST(Get, WarnsOfTheFirstEqualPoints) {
  EXPECT_EQ(type_in("get A 5\n1 1 1 1\n1 2 2 2\n1 3 3 3\n2 6 6 6\n1 2 2 2\n").err,
            "warning: points 2 and 5 are equal\n");
  EXPECT_EQ(type_in("get A 2\n1 1 1 1\n1 2 2 2\n").err, "");
}

TEST(Get, ThrowsAtAZeroDenominator) {
  for (const std::string fraction : {"1/0", "0/0", "1/101", "5/202", "3/-101"}) {
    EXPECT_THROW(type_in("get A 1\n1 " + fraction + " 1 1\n"), division_by_zero) << fraction;
  }
}

TEST(Get, ReducesAFractionBeforeItDivides) {
  EXPECT_EQ(type_in("get A 1\n1 101/202 202/101 -303/606\n").out,
            enter + "1. point entered : <1:-50:2:50>\n% ");
}

TEST(Scheme, ReadsAPointFile) {
  const transcript t = read_file("4 2\n1 2 3 4\n2 1/2 -1\n100 and whatever follows");
  EXPECT_EQ(t.out, "% enter filename : " + line + "% scheme A\n% ");
  EXPECT_EQ(t.err, "");
  const point_file file("4\n2 1 2 3 4 2 1/2 -1 100");
  EXPECT_EQ(type_in("scheme A " + file.name() + "\nA\n").out,
            "% enter filename : " + line +
                "% scheme A:\nscheme consists of 2 points:\n<1:2:3:4><1:-25:50:50>\n" + line +
                "% ");
}

TEST(Scheme, IgnoresWhatStandsDirectlyBehindTheLastNumber) {
  const transcript t = read_file("4 1 1 2 3 4x/0");
  EXPECT_EQ(t.out, "% enter filename : " + line + "% scheme A\n% ");
  EXPECT_EQ(t.err, "");
}

TEST(Scheme, DropsNoCharacterBehindTheFirstCoordinate) {
  EXPECT_EQ(read_file("4 1\n1:2 3 4\n").out, malformed_file);
}

TEST(Scheme, TreatsAFirstCoordinateOfZeroAsOne) {
  EXPECT_EQ(read_file("4 1 0 2 3 4").err,
            "first coordinate is expected to be different from zero\nfirst coordinate as '1'\n");
}

TEST(Scheme, RefusesAFileOfAnotherDimensionWhateverFollows) {
  for (const std::string contents : {"3 1 1 2 3", "3", "5 many", "-4 -1", "0"}) {
    EXPECT_EQ(read_file(contents).out,
              "% enter filename : can't read scheme because of different dimensions\n"
              "command or indentifier unknown\n" +
                  line + "% % ");
  }
}

TEST(Scheme, RefusesAMalformedFile) {
  for (const std::string contents :
       {"", "four", "4", "4 x", "4 -1", "4 1 1 2 3", "4 2 1 2 3 4", "4 1 1 2 x 4", "4 1 1 2 3 4/",
        "4 99999999999 1 2 3 4", "99999999999 1", "4 1000000000 1 2 3 4"}) {
    EXPECT_EQ(read_file(contents).out, malformed_file) << contents;
  }
}

TEST(Scheme, ReadsAnEmptySet) {
  EXPECT_EQ(read_file("4 0").out, "% enter filename : " + line + "% scheme A\n% ");
}

TEST(Scheme, WarnsOfTheFirstEqualPoints) {
  EXPECT_EQ(read_file("4 3 1 2 3 4 1 5 6 7 2 4 6 8").err, "warning: points 1 and 3 are equal\n");
}

TEST(Scheme, ReportsAFileThatCantBeOpened) {
  const std::string cant_open =
      "% enter filename : can't open file\ncan't read scheme because of different dimensions\n"
      "command or indentifier unknown\n% % ";
  EXPECT_EQ(type_in("scheme A /nowhere/at/all\nlist\n").out, cant_open);
  EXPECT_EQ(type_in("scheme A /tmp\nlist\n").out, cant_open);
  EXPECT_EQ(type_in("scheme A " + std::string(100000, 'x') + "\nlist\n").out, cant_open);
}

TEST(Scheme, TheFileNameMayStandOnTheNextLine) {
  EXPECT_EQ(type_in("scheme A\n\n /nowhere\n").out,
            "% enter filename : can't open file\n"
            "can't read scheme because of different dimensions\n"
            "command or indentifier unknown\n% ");
}

TEST(Scheme, IsDroppedWhenTheInputEndsBeforeTheFileName) {
  EXPECT_EQ(type_in("scheme A").out, "% enter filename : ");
  EXPECT_EQ(type_in("scheme ").out, "% ");
}

TEST(Scheme, ThrowsAtAZeroDenominator) {
  const point_file file("4 1 1 2 1/0 4");
  EXPECT_THROW(type_in("scheme A " + file.name() + "\n"), division_by_zero);
}

}  // namespace
}  // namespace zep::tests
