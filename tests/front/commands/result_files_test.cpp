// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/result_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <sstream>

#include "tests/front/file_name.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

const std::string triangle = "dim 2\nget A 3\n1 0 0\n1 1 0\n1 0 1\n";
const std::string ask = "% enter filename : ";
const std::string cant_open =
    "can't open file\ncan't read scheme because of different dimensions\n"
    "command or indentifier unknown\n";

// What a session prints behind its first lines.
std::string printed_after(const std::string& first, const std::string& typed) {
  const std::size_t known = type_in(first).out.size() - 2;
  return type_in(first + typed).out.substr(known);
}

TEST(ResultFiles, PointsAreWrittenAsTheyAreRead) {
  const file_name name;
  EXPECT_EQ(printed_after("dim 2\nget A 2\n1 2 3\n1 0 1\n", "putscheme A " + name.text() + "\n"),
            ask + line + "% ");
  EXPECT_EQ(name.contents(), "3\n2\n1\n2\n3\n1\n0\n1\n");
  const std::string out = type_in("dim 2\nscheme B " + name.text() + "\nB\n").out;
  EXPECT_NE(out.find("<1:2:3><1:0:1>"), std::string::npos);
}

TEST(ResultFiles, PointsReadBackToTheSameSet) {
  const file_name name;
  const std::string out =
      type_in("random A 20\nputscheme A " + name.text() + "\nscheme B " + name.text() + "\nA\nB\n")
          .out;
  const std::size_t a = out.find("scheme A:\n");
  const std::size_t b = out.find("scheme B:\n");
  EXPECT_EQ(out.substr(a + 10, b - a - 12), out.substr(b + 10, out.size() - b - 12));
}

TEST(ResultFiles, HoldTheNumbersOfRowsAndColumnsBeforeTheEntries) {
  const file_name name;
  type_in(triangle + "putsep A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), "1\n3\n-X-Y+1\nX\nY\n");
  type_in(triangle + "putgbasis A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), "1\n3\nY2-Y\nXY\nX2-X\n");
  type_in(triangle + "putmin A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), "1\n3\nXY\nY2-YZ\nX2-XZ\n");
  type_in(triangle + "putbeta A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), "2\n3\n1\n0\n0\n1\n-1\n-1\n");
}

TEST(ResultFiles, ThePresentationIsWrittenColumnByColumn) {
  const file_name name;
  const std::string shown = printed_after(triangle, "putomega A " + name.text() + "\nomegamat A\n");
  std::string columns = shown.substr(shown.find("A_2 :\n") + 6);
  columns.erase(columns.find(line));
  // The same entries in screen form: no carets occur here, and blanks only in sums.
  std::string expected;
  for (const char c : columns) {
    if (c != '[' && c != ']' && c != ' ' && c != ';') expected += c;
  }
  EXPECT_EQ(name.contents(), "2\n3\n" + expected);
}

TEST(ResultFiles, TheRecordIsWrittenAsItIsDisplayedButForTheOrderIdeal) {
  const file_name name;
  const std::string first = triangle + "sep A\nmin A\nsocle A\n";
  const std::string order_ideal = "order ideal of X : \n1, Y, X\n" + line;
  EXPECT_EQ(printed_after(first, "write A " + name.text() + "\n"), ask + order_ideal + line + "% ");
  std::string displayed = printed_after(first, "A\n");
  const std::size_t place = displayed.find(order_ideal);
  ASSERT_NE(place, std::string::npos);
  displayed.erase(place, order_ideal.size());
  EXPECT_EQ("% scheme A:\n" + name.contents() + "% ", displayed);
}

TEST(ResultFiles, WhatExistsPrintsLineInPlaceOfTheComputation) {
  const file_name name;
  for (const auto& [command, compute] : {std::pair("putsep", "sep"), std::pair("putgbasis", "bumo"),
                                         std::pair("putbeta", "betamat")}) {
    const std::string put = std::string(command) + " A " + name.text() + "\n";
    const std::string computation = std::string(compute) == "bumo" ? line : line + line;
    EXPECT_EQ(printed_after(triangle, put), ask + computation + "% ");
    const std::string first_contents = name.contents();
    EXPECT_EQ(printed_after(triangle + put, put), ask + line + "% ");
    EXPECT_EQ(name.contents(), first_contents);
    EXPECT_EQ(printed_after(triangle + compute + " A\n", put), ask + line + "% ");
  }
  const std::string put = "putmin A " + name.text() + "\n";
  EXPECT_EQ(printed_after(triangle + "bumo A\n", put), ask + "% ");
  EXPECT_EQ(printed_after(triangle + "min A\n", put), ask + line + "% ");
  const std::string presentation = "putomega A " + name.text() + "\n";
  EXPECT_EQ(printed_after(triangle + "bumo A\n", presentation), ask + "% ");
  EXPECT_EQ(printed_after(triangle + "omega A\n", presentation), ask + line + "% ");
}

TEST(ResultFiles, AResultIsMissingThoughOthersThatNeedMoreExist) {
  const file_name name;
  const std::string to_file = " A " + name.text() + "\n";
  const std::string with_everything_but_separators = triangle + "bumo A\nmin A\nsocle A\nomega A\n";
  EXPECT_EQ(printed_after(with_everything_but_separators, "putsep" + to_file + "is_cb A\n"),
            ask + line + "% scheme has Cayley-Bacharach property\n" + line + "% ");
  // The separators are there from then on, and `display` shows what they decide.
  const std::string shown =
      printed_after(with_everything_but_separators + "putsep" + to_file, "A\n");
  EXPECT_NE(shown.find("scheme has Cayley-Bacharach property\n"), std::string::npos);

  EXPECT_EQ(printed_after(triangle + "sep A\nomega A\n", "putbeta" + to_file), ask + "% ");
  EXPECT_EQ(name.contents(), "2\n3\n1\n0\n0\n1\n-1\n-1\n");
  EXPECT_EQ(printed_after(triangle + "betamat A\nomega A\n", "putbeta" + to_file),
            ask + line + "% ");
  EXPECT_EQ(printed_after(triangle + "betamat A\n", "putmin" + to_file), ask + "% ");
  EXPECT_EQ(printed_after(triangle + "min A\nsocle A\n", "putomega" + to_file), ask + "% ");
}

TEST(ResultFiles, TheBasisExistsFromItsComputationOn) {
  const file_name name;
  const std::string put = "putgbasis A " + name.text() + "\n";
  for (const std::string& points : {triangle, std::string("get A 0\n")}) {
    for (const std::string command : {"bumo", "gbasis", "sep", "alpha", "min"}) {
      const std::string first = points + command + " A\n";
      EXPECT_EQ(printed_after(first, put), ask + line + "% ") << command;
      // No progress is reported a second time.
      EXPECT_EQ(type_in(first + put).err, type_in(first).err) << command;
    }
  }
}

TEST(ResultFiles, PointsAndRecordComputeNothing) {
  const file_name name;
  const std::string points = "scheme consists of 3 points:\n<1:0:0><1:1:0><1:0:1>\n" + line;
  for (const std::string put : {"putscheme", "write"}) {
    const std::string typed = put + " A " + name.text() + "\n";
    EXPECT_EQ(printed_after(triangle, typed), ask + line + "% ");
    if (put == "write") {
      EXPECT_EQ(name.contents(), points);
    }
    EXPECT_EQ(printed_after(triangle + typed, "A\n"), "% scheme A:\n" + points + "% ");
  }
}

TEST(ResultFiles, AFileThatExistsIsOverwritten) {
  const file_name name;
  std::ofstream(name.text()) << std::string(10000, 'x');
  type_in(triangle + "putsep A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), "1\n3\n-X-Y+1\nX\nY\n");
}

TEST(ResultFiles, AFileThatCantBeOpenedComputesNothing) {
  for (const std::string put :
       {"putscheme", "putbeta", "putsep", "putgbasis", "putmin", "putomega", "write"}) {
    for (const std::string name : {"/nowhere/at/all", "/"}) {
      const transcript t = type_in(triangle + put + " A " + name + "\nA\n");
      EXPECT_EQ(printed_after(triangle, put + " A " + name + "\nA\n"),
                ask + cant_open + "% scheme A:\nscheme consists of 3 points:\n" +
                    "<1:0:0><1:1:0><1:0:1>\n" + line + "% ")
          << put << " " << name;
      EXPECT_EQ(t.err, "");
    }
  }
}

TEST(ResultFiles, AFullDeviceIsReported) {
  const std::string warning = "warning: can't write all of /dev/full\n";
  const transcript t =
      type_in("quiet\n" + triangle + "putscheme A /dev/full\nputsep A /dev/full\n");
  EXPECT_EQ(t.err, warning + warning);
}

TEST(ResultFiles, AreReadableForAllAndWritableForTheGroup) {
  const file_name name;
  const mode_t before = ::umask(0);
  type_in(triangle + "putscheme A " + name.text() + "\n");
  ::umask(before);
  struct stat status {};
  ASSERT_EQ(::stat(name.text().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0664U);
}

TEST(ResultFiles, HaveNamesOfAnyLength) {
  EXPECT_EQ(printed_after(triangle, "putsep A " + std::string(100000, 'x') + "\n"),
            ask + cant_open + "% ");
}

TEST(ResultFiles, TheNameMayStandOnTheNextLine) {
  EXPECT_EQ(printed_after(triangle, "putgbasis A\n/dev/null\n"), ask + line + "% ");
}

TEST(ResultFiles, TheEndOfTheInputDropsTheCommand) {
  EXPECT_EQ(printed_after(triangle, "putsep A"), ask);
  EXPECT_EQ(printed_after(triangle, "write A \n"), ask);
}

TEST(ResultFiles, OfNoPointsHaveEmptyLists) {
  const file_name name;
  const std::string none = "get A 0\n";
  type_in(none + "putscheme A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), "4\n0\n");
  for (const std::string put : {"putsep", "putgbasis", "putmin"}) {
    type_in(none + put + " A " + name.text() + "\n");
    EXPECT_EQ(name.contents(), "1\n0\n") << put;
  }
  for (const std::string put : {"putbeta", "putomega"}) {
    type_in(none + put + " A " + name.text() + "\n");
    EXPECT_EQ(name.contents(), "0\n0\n") << put;
  }
}

TEST(NUniformityCommand, ReadsItsNumberFirst) {
  const std::string set = "quiet\n" + triangle;
  EXPECT_EQ(printed_after(set, "is_uf A\n\n 0\n"),
            "% n-unifomity only defined for n > 0 !!!\n" + line + "% ");
  EXPECT_EQ(printed_after(set, "is_uf A x\n"),
            "% n-unifomity only defined for n > 0 !!!\n" + line + "unexpected 'x'\n% ");
  EXPECT_EQ(printed_after(set, "is_uf A"), "% ");
  EXPECT_EQ(printed_after(set, "is_uf A -"), "% ");
}

}  // namespace
}  // namespace zep::tests
