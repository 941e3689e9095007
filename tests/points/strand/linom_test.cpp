#include "points/strand/linom.h"

#include <gtest/gtest.h>

#include "points/module/canonical_module.h"
#include "points/strand/linid.h"
#include "tests/points/computing.h"
#include "tests/points/shown.h"
#include "tests/points/special_sets.h"
#include "text/record.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

const std::vector<coordinates> three_collinear_points_and_two = {
    {0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {0, 1, 0}, {1, 0, 0}};

const std::string table_of_triangle =
    "    | 1   2   \n--------------\ndeg | 0   -1  \nw_R | 2   3   \n" + line;

// A set whose canonical module has been presented, so that the strand alone is reported.
scheme with_presentation(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  omega(X);
  return X;
}

TEST(Linom, OfATriangleHasTwoGeneratorsAndThreeRelations) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation(triangle);
  const written t = by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(t.out, ".");
  EXPECT_EQ(t.err,
            "w_R has 2 generators in degree 0\n3 syzygies in degree -1 found\n"
            "eliminating syzygies ...\n[1]\n" +
                line);
  EXPECT_EQ(X.linres[1], (std::vector<int>{3, 2}));
  EXPECT_EQ(X.linom, 1);
  EXPECT_EQ(shown(disp_linom, X), table_of_triangle);
}

TEST(Linom, WithoutLinearRelationsHasItsGeneratorsAlone) {
  const ring_in_force ring;
  scheme X = with_presentation(points_of_frame());
  const written t = by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(t.err, "w_R has 1 generators in degree -1\n0 syzygies in degree -2 found\n\n" + line);
  EXPECT_EQ(X.linres[1], (std::vector<int>{0, 0, 1}));
}

TEST(Linom, CountsTheGeneratorsOfLeastDegreeOnly) {
  const ring_in_force ring(101, 3);
  // Generators to Y, X and Z^2.
  scheme X = with_presentation(three_collinear_points_and_two);
  ASSERT_EQ(no_of_pr(X), 3);
  by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(X.linres[1], (std::vector<int>{1, 2, 1}));
}

// A level behind the last place of the table is reported all the same.
TEST(Linom, OfOnePointGoesBeyondTheTable) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation({{5, 7}});
  const written t = by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(t.err,
            "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n"
            "eliminating syzygies ...\n[1]\n1 syzygies in degree -1 found\n\n" +
                line);
  EXPECT_EQ(X.linres[1], (std::vector<int>{2, 1}));
  const written file = by([&](std::ostream& out) { putlinom(out, X); });
  EXPECT_EQ(file.given,
            "\n1. matrix of linear resolution of w_R : \n1\n2\nX-5Z\nY-7Z\n"
            "\n2. matrix of linear resolution of w_R : \n2\n1\n-Y+7Z\nX-5Z\n");
}

TEST(Linom, OfNoPointsHasNothing) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation({});
  const written t = by([&](std::ostream&) { linom(X); });
  EXPECT_TRUE(t.err.ends_with(
      "w_R has 0 generators in degree 0\n0 syzygies in degree -1 found\n\n" + line));
  EXPECT_EQ(X.linres[1], (std::vector<int>{0, 0}));
  EXPECT_EQ(X.linom, 1);
}

TEST(Linom, IsComputedOnce) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation(triangle);
  by([&](std::ostream&) { linom(X); });
  const written again = by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(again.out + again.err, "");
}

TEST(Linom, MakesThePresentationItNeeds) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(no_of_pr(X), 2);
  EXPECT_EQ(X.linres[1], (std::vector<int>{3, 2}));
}

TEST(Linom, LeavesTheDimensionAsItWas) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation(triangle);
  by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(dim, 2);
}

TEST(Putlinom, WritesRelationsUnderHeadingsEachTimeAndMarksThem) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation(triangle);
  for (int round = 0; round < 2; ++round) {
    const written t = by([&](std::ostream& out) { putlinom(out, X); });
    EXPECT_TRUE(t.given.starts_with("\n1. matrix of linear resolution of w_R : \n2\n3\n"));
    EXPECT_EQ(std::count(t.given.begin(), t.given.end(), '\n'), 10);
    EXPECT_EQ(t.out, ".");
    EXPECT_EQ(X.linom, 1);
  }
}

TEST(Linomsyz, PrintsTheLinearRelationsAndStopsThere) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation({{5, 7}});
  const written t = by([&](std::ostream& out) { linomsyz(out, X); });
  EXPECT_EQ(t.given, "[ X - 5Z ]\n[ Y - 7Z ]\n");
  EXPECT_EQ(t.out, "");
  EXPECT_EQ(t.err, "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n" + line);
  EXPECT_EQ(X.linom, 0);
  EXPECT_EQ(X.linres[1], (std::vector<int>{2, 1}));
}

TEST(Putlinomsyz, WritesTheLinearRelationsAndMarksNothing) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation({{5, 7}});
  const written t = by([&](std::ostream& out) { putlinomsyz(out, X); });
  EXPECT_EQ(t.given, "1\n2\nX-5Z\nY-7Z\n");
  EXPECT_EQ(X.linom, 0);
}

TEST(Linomsyz, PrintsTheRelationsBehindTheirNumber) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation({{5, 7}});
  EXPECT_EQ(on_screen([&](std::ostream& out) { linomsyz(out, X); }),
            "w_R has 1 generators in degree 1\n2 syzygies in degree 0 found\n"
            "[ X - 5Z ]\n[ Y - 7Z ]\n" +
                line);
}

TEST(Linomsyz, EndsTheNumbersOfLinomAtTheLinearRelations) {
  const ring_in_force ring(101, 3);
  for (const auto relations : {linomsyz, putlinomsyz}) {
    scheme X = with_presentation(three_collinear_points_and_two);
    by([&](std::ostream&) { linom(X); });
    by([&](std::ostream& out) { relations(out, X); });
    EXPECT_EQ(X.linres[1], (std::vector<int>{0, 2, 1}));
    EXPECT_EQ(X.linom, 1);
  }
}

TEST(Linomsyz, ShowsNothingWhereThereIsNoLinearRelation) {
  const ring_in_force ring;
  scheme X = with_presentation(points_of_frame());
  EXPECT_EQ(by([&](std::ostream& out) { linomsyz(out, X); }).given, "");
  EXPECT_EQ(by([&](std::ostream& out) { putlinomsyz(out, X); }).given, "");
  EXPECT_EQ(by([&](std::ostream& out) { putlinom(out, X); }).given, "");
}

// What is done for one strand leaves the numbers and the mark of the other.
TEST(LinearStrands, AreComputedApart) {
  const ring_in_force ring(101, 3);
  scheme X = with_presentation(three_collinear_points_and_two);
  by([&](std::ostream&) {
    linid(X);
    linom(X);
  });
  const auto both = X.linres;
  for (const auto write : {linsyz, putlinsyz, putlinid, putlinom}) {
    by([&](std::ostream& out) { write(out, X); });
    EXPECT_EQ(X.linres, both);
    EXPECT_EQ(X.linid, 1);
    EXPECT_EQ(X.linom, 1);
  }
  for (const auto write : {linomsyz, putlinomsyz}) {
    by([&](std::ostream& out) { write(out, X); });
    EXPECT_EQ(X.linres[0], both[0]);
    EXPECT_EQ(X.linid, 1);
  }
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

TEST(DispLinom, IsPartOfTheDisplayWhenTheOtherStrandIsNotThere) {
  const ring_in_force ring(101, 2);
  scheme X = with_presentation(triangle);
  by([&](std::ostream&) { linom(X); });
  EXPECT_TRUE(by([&](std::ostream& out) { out << X; }).given.ends_with(table_of_triangle));
}

TEST(Linom, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    by([&](std::ostream& out) { linomsyz(out, X); });
    by([&](std::ostream& out) { putlinom(out, X); });
    EXPECT_EQ(X.linom, 1);
  });
}

}  // namespace
}  // namespace zep::tests
