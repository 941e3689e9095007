// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/strand_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "tests/front/file_name.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

const std::string triangle = "quiet\ndim 2\nget A 3\n1 0 0\n1 1 0\n1 0 1\n";
const std::string ask = "% enter filename : ";
const std::string cant_open =
    "can't open file\ncan't read scheme because of different dimensions\n"
    "command or indentifier unknown\n";

const std::string ideal_table =
    "    | 1   2   \n--------------\ndeg | 2   1   \nI_X | 3   2   \n" + line;
const std::string both_tables =
    "    | 1   2   \n--------------\ndeg | 2   1   \nI_X | 3   2   \n--------------\n"
    "w_R | 3   2   \ndeg | -1  0   \n" +
    line;

// What a session prints behind its first lines.
std::string printed_after(const std::string& first, const std::string& typed) {
  const std::size_t known = type_in(first).out.size() - 2;
  return type_in(first + typed).out.substr(known);
}

const std::string heading_of_ideal = "\n1. matrix of linear resolution of I_X : \n";
const std::string heading_of_module = "\n1. matrix of linear resolution of w_R : \n";

TEST(StrandFiles, NothingIsPrintedAfterwards) {
  const file_name name;
  const std::string first = triangle + "min A\nomega A\n";
  for (const std::string put : {"putlinid", "putlinsyz", "putlinomsyz"}) {
    EXPECT_EQ(printed_after(first, put + " A " + name.text() + "\n"), ask + "% ") << put;
  }
  for (const std::string put : {"putlinom", "putlinres"}) {
    EXPECT_EQ(printed_after(first, put + " A " + name.text() + "\n"), ask + ".% ") << put;
  }
}

TEST(StrandFiles, BothStrandsGoIntoOneFile) {
  const file_name name;
  std::ofstream(name.text()) << std::string(10000, 'x');
  type_in(triangle + "putlinid A " + name.text() + "\n");
  const std::string ideal = name.contents();
  EXPECT_TRUE(ideal.starts_with(heading_of_ideal));
  type_in(triangle + "putlinom A " + name.text() + "\n");
  const std::string module = name.contents();
  EXPECT_TRUE(module.starts_with(heading_of_module));
  type_in(triangle + "putlinres A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), ideal + module);
}

TEST(StrandFiles, MarkTheNumbersAsComputed) {
  const file_name name;
  EXPECT_EQ(printed_after(triangle + "putlinres A " + name.text() + "\n", "linres A\n"),
            "% " + both_tables + "% ");
  EXPECT_EQ(printed_after(triangle + "putlinid A " + name.text() + "\n", "linid A\n"),
            "% " + ideal_table + "% ");
}

TEST(StrandFiles, SyzygiesMarkNothing) {
  const file_name name;
  const std::string put = "putlinsyz A " + name.text() + "\nputlinomsyz A " + name.text() + "\n";
  EXPECT_EQ(type_in(triangle + "min A\nomega A\n" + put + "A\n").out.find("I_X | "),
            std::string::npos);
  EXPECT_EQ(type_in(triangle + put + "A\n").out.find("w_R | "), std::string::npos);
}

TEST(StrandFiles, TablesAreWrittenAsTheyAre) {
  const file_name name;
  type_in(triangle + "writelinid A " + name.text() + "\n");
  EXPECT_EQ(name.contents(),
            "    | 1   2   \n--------------\ndeg | 0   -1  \nI_X | 0   0   \n" + line);
  type_in(triangle + "linsyz A\nwritelinid A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), ideal_table);
  type_in(triangle + "linres A\nwritelinres A " + name.text() + "\n");
  EXPECT_EQ(name.contents(), both_tables);
  type_in(triangle + "linom A\nwritelinom A " + name.text() + "\n");
  EXPECT_EQ(name.contents(),
            "    | 1   2   \n--------------\ndeg | 0   -1  \nw_R | 2   3   \n" + line);
}

TEST(StrandFiles, AFileThatCantBeOpenedComputesNothing) {
  for (const std::string put : {"putlinid", "putlinom", "putlinsyz", "putlinomsyz", "writelinid",
                                "writelinom", "writelinres"}) {
    EXPECT_EQ(printed_after(triangle, put + " A /nowhere/at/all\nA\n"),
              ask + cant_open + "% scheme A:\nscheme consists of 3 points:\n" +
                  "<1:0:0><1:1:0><1:0:1>\n" + line + "% ")
        << put;
  }
}

TEST(StrandFiles, BothHalvesReportAFileThatCantBeOpened) {
  EXPECT_EQ(printed_after(triangle, "putlinres A /nowhere/at/all\n"),
            ask + cant_open + cant_open + "% ");
}

TEST(StrandFiles, AFullDeviceIsReportedForEachHalf) {
  const std::string warning = "warning: can't write all of /dev/full\n";
  EXPECT_EQ(type_in(triangle + "putlinres A /dev/full\n").err, warning + warning);
}

TEST(StrandFiles, AreReadableForAllAndWritableForTheGroup) {
  const file_name name;
  const mode_t before = ::umask(0);
  type_in(triangle + "putlinres A " + name.text() + "\n");
  ::umask(before);
  struct stat status {};
  ASSERT_EQ(::stat(name.text().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0664U);
}

}  // namespace
}  // namespace zep::tests
