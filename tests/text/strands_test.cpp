// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/strands.h"

#include <gtest/gtest.h>

#include "tests/points/computing.h"
#include "tests/points/everything.h"
#include "tests/points/shown.h"
#include "text/record.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

const std::string table_of_I_X =
    "    | 1   2   \n--------------\ndeg | 2   1   \nI_X | 3   2   \n" + line;
const std::string table_of_w_R =
    "    | 1   2   \n--------------\ndeg | 0   -1  \nw_R | 2   3   \n" + line;
const std::string table_of_both =
    "    | 1   2   \n--------------\ndeg | 2   1   \nI_X | 3   2   \n--------------\n"
    "w_R | 3   2   \ndeg | -1  0   \n" +
    line;

std::string record_of(const scheme& X) {
  std::ostringstream screen;
  return shown([&](std::ostream& out) { display(out, screen, X); });
}

TEST(DispLinid, ShowsTheNumbersOfAStrand) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linid();
  EXPECT_EQ(shown(disp_linid, X.known()), table_of_I_X);
}

TEST(DispLinid, ShowsZerosBeforeAnythingIsComputed) {
  const ring_in_force ring(101, 3);
  const scheme X = make_set({{1, 2, 3}});
  EXPECT_EQ(
      shown(disp_linid, X.known()),
      "    | 1   2   3   \n------------------\ndeg | 0   -1  -2  \nI_X | 0   0   0   \n" + line);
}

TEST(DispLinid, HasColumnsAsWideAsTheirEntries) {
  EXPECT_EQ(shown_table(disp_linid, {.alpha = 2, .of_I_X = {7, 1000, 12345}}),
            "    | 1   2    3     \n---------------------\ndeg | 2   1    0     \n"
            "I_X | 7   1000 12345 \n" +
                line);
}

TEST(DispLinid, IsPartOfTheDisplayOnceTheNumbersAreThere) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linid([](int, const form_vectors&) {}, scheme::numbers::stay);
  EXPECT_EQ(record_of(X).find("I_X | "), std::string::npos);
  X.linid();
  EXPECT_TRUE(record_of(X).ends_with(table_of_I_X));
  X.linom();
  EXPECT_EQ(record_of(X).find(table_of_I_X), std::string::npos);
  EXPECT_TRUE(record_of(X).ends_with(table_of_both));
}

TEST(DispLinom, ShowsTheNumbersOfAStrand) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linom();
  EXPECT_EQ(shown(disp_linom, X.known()), table_of_w_R);
}

TEST(DispLinom, ShowsZerosBeforeAnythingIsComputed) {
  const ring_in_force ring(101, 2);
  const scheme X = make_set(triangle);
  EXPECT_EQ(shown(disp_linom, X.known()),
            "    | 1   2   \n--------------\ndeg | 0   -1  \nw_R | 0   0   \n" + line);
}

TEST(DispLinom, PadsAnEntryToTheWidthOfTheColumnWithItsIndex) {
  // The columns are 5, 3 and 3 wide; the entries are padded to 3, 3 and 5.
  EXPECT_EQ(shown_table(disp_linom, {.sigma = 3, .of_w_R = {7, 60, 12345}}),
            "    | 1     2   3   \n--------------------\ndeg | -3    -4  -5  \n"
            "w_R | 1234560  7     \n" +
                line);
}

TEST(DispLinom, HasNoWiderColumnsForItsDegrees) {
  EXPECT_EQ(shown_table(disp_linom, {.sigma = 99, .of_w_R = {1, 2, 3}}),
            "    | 1   2   3   \n------------------\ndeg | -99 -100-101\n"
            "w_R | 3   2   1   \n" +
                line);
}

TEST(DispLinom, IsPartOfTheDisplayWhenTheOtherStrandIsNotThere) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linom();
  EXPECT_TRUE(record_of(X).ends_with(table_of_w_R));
}

TEST(DispLinres, ShowsBothStrandsOfASet) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  X.linid();
  X.linom();
  EXPECT_EQ(shown(disp_linres, X.known()), table_of_both);
}

TEST(DispLinres, ShowsZerosBeforeAnythingIsComputed) {
  const ring_in_force ring(101, 2);
  const scheme X = make_set(triangle);
  EXPECT_EQ(shown(disp_linres, X.known()),
            "    | 1   2   \n--------------\ndeg | 0   -1  \nI_X | 0   0   \n--------------\n"
            "w_R | 0   0   \ndeg | -1  0   \n" +
                line);
}

TEST(DispLinres, HasNoWiderColumnsForItsDegrees) {
  EXPECT_EQ(
      shown_table(disp_linres, {.alpha = 1, .sigma = 98, .of_I_X = {2, 1, 0}, .of_w_R = {1, 2, 1}}),
      "    | 1   2   3   \n------------------\ndeg | 1   0   -1  \nI_X | 2   1   0   \n"
      "------------------\nw_R | 1   2   1   \ndeg | -100-99 -98 \n" +
          line);
}

TEST(DispLinres, ShowsBothStrandsWithWidthsForBoth) {
  EXPECT_EQ(shown_table(disp_linres,
                        {.alpha = 2, .sigma = 1, .of_I_X = {1, 1000, 3}, .of_w_R = {12345, 6, 7}}),
            "    | 1     2    3   \n---------------------\ndeg | 2     1    0   \n"
            "I_X | 1     1000 3   \n---------------------\nw_R | 12345 6    7   \n"
            "deg | -3    -2   -1  \n" +
                line);
}

TEST(Strands, AreShownWithoutAnythingBeingComputed) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  const std::string before = contents(set.X);
  for (const auto display : {disp_linid, disp_linom, disp_linres}) {
    shown(display, set.X.known());
    EXPECT_EQ(contents(set.X), before);
  }
  EXPECT_EQ(set.reporter.out + set.reporter.err, "");
}

}  // namespace
}  // namespace zep::tests
