#include "points/strand/linid.h"

#include <gtest/gtest.h>

#include "points/ideal/minimal_generators.h"
#include "points/strand/linom.h"
#include "tests/points/computing.h"
#include "tests/points/shown.h"
#include "tests/points/special_sets.h"
#include "text/record.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

const std::string table_of_triangle =
    "    | 1   2   \n--------------\ndeg | 2   1   \nI_X | 3   2   \n" + line;

// A set whose minimal generators exist, so that the strand alone is reported.
scheme with_generators(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  min_Ix(X);
  return X;
}

TEST(Linid, OfATriangleHasThreeGeneratorsAndTwoSyzygies) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  const written t = by([&](std::ostream&) { linid(X); });
  EXPECT_EQ(t.out, "");
  EXPECT_EQ(t.err,
            "I_X has 3 generators of degree 2\neliminating syzygies ...\n[2][1]\n"
            "2 syzygies in degree 1 found\n\n" +
                line);
  EXPECT_EQ(X.linres[0], (std::vector<int>{3, 2}));
  EXPECT_EQ(X.linid, 1);
  EXPECT_EQ(shown(disp_linid, X), table_of_triangle);
}

TEST(Linid, WithoutPairsHasNoSyzygies) {
  const ring_in_force ring(101, 2);
  // Two conics without a common component, up to multiples of Y^2 and X^2.
  scheme X = with_generators({{0, 0}, {1, 0}, {0, 1}, {1, 1}});
  const written t = by([&](std::ostream&) { linid(X); });
  EXPECT_EQ(t.err, "I_X has 2 generators of degree 2\n\n" + line);
  EXPECT_EQ(X.linres[0], (std::vector<int>{2, 0}));
}

TEST(Linid, OfNoPointsHasNothing) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators({});
  const written t = by([&](std::ostream&) { linid(X); });
  EXPECT_EQ(t.err, "I_X has 0 generators of degree 0\n\n" + line);
  EXPECT_EQ(X.linres[0], (std::vector<int>{0, 0}));
  EXPECT_EQ(X.linid, 1);
}

TEST(Linid, IsComputedOnce) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  by([&](std::ostream&) { linid(X); });
  EXPECT_EQ(by([&](std::ostream&) { linid(X); }).err, "");
}

TEST(Linid, MakesTheMinimalGeneratorsItNeeds) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  by([&](std::ostream&) { linid(X); });
  EXPECT_TRUE(X.min_Ix.has_value());
  EXPECT_EQ(X.linres[0], (std::vector<int>{3, 2}));
}

TEST(Linid, LeavesTheDimensionAsItWas) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  by([&](std::ostream& out) { linsyz(out, X); });
  EXPECT_EQ(dim, 2);
}

TEST(Linsyz, PrintsTheSyzygiesEachTimeAndMarksNothing) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  // The generators are XY, Y^2 - YZ, X^2 - XZ.
  const std::string syzygies = "[ - Y + Z;\nX;\n 0 ]\n[ X - Z;\n 0;\n- Y ]\n";
  for (int round = 0; round < 2; ++round) {
    const written t = by([&](std::ostream& out) { linsyz(out, X); });
    EXPECT_TRUE(t.err.starts_with("I_X has 3 generators"));
    EXPECT_EQ(t.given, syzygies);
    EXPECT_EQ(X.linid, 0);
    EXPECT_EQ(X.linres[0], (std::vector<int>{3, 2}));
  }
}

TEST(Linsyz, PrintsTheSyzygiesOfALevelBehindTheirNumber) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  EXPECT_EQ(on_screen([&](std::ostream& out) { linsyz(out, X); }),
            "I_X has 3 generators of degree 2\neliminating syzygies ...\n[2][1]\n"
            "2 syzygies in degree 1 found\n[ - Y + Z;\nX;\n 0 ]\n[ X - Z;\n 0;\n- Y ]\n\n" +
                line);
}

TEST(Linsyz, LeavesTheMarkOfLinid) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  by([&](std::ostream&) { linid(X); });
  by([&](std::ostream& out) { linsyz(out, X); });
  EXPECT_EQ(X.linid, 1);
  by([&](std::ostream& out) { putlinsyz(out, X); });
  EXPECT_EQ(X.linid, 1);
}

const std::vector<coordinates> ten_points = {{1, 2, 3}, {4, 5, 6}, {7, 8, 10}, {3, 1, 4},
                                             {2, 7, 1}, {8, 2, 8}, {1, 8, 2},  {8, 4, 5},
                                             {9, 0, 4}, {5, 2, 3}};

TEST(Linid, LeavesADotForWhatIsNoSyzygyEvenWhenQuiet) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators({{1, 2}, {4, 7}, {5, 3}, {8, 9}});
  verbose = 0;
  const written t = by([&](std::ostream&) { linid(X); });
  verbose = 1;
  EXPECT_EQ(t.out, ".");
  EXPECT_EQ(t.err, "");
  EXPECT_EQ(X.linres[0], (std::vector<int>{2, 0}));
}

TEST(Putlinid, WritesGeneratorsAndSyzygiesUnderHeadingsAndMarksThem) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  for (int round = 0; round < 2; ++round) {
    const written t = by([&](std::ostream& out) { putlinid(out, X); });
    EXPECT_TRUE(
        t.given.starts_with("\n1. matrix of linear resolution of I_X : \n1\n3\nXY\nY2-YZ\nX2-XZ\n"
                            "\n2. matrix of linear resolution of I_X : \n3\n2\n"));
    EXPECT_EQ(std::count(t.given.begin(), t.given.end(), '\n'), 17);
    EXPECT_TRUE(t.err.starts_with("I_X has 3 generators"));
    EXPECT_EQ(X.linid, 1);
  }
}

TEST(Putlinsyz, WritesTheSyzygiesWithoutHeadingsAndMarksNothing) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators(triangle);
  const written t = by([&](std::ostream& out) { putlinsyz(out, X); });
  EXPECT_TRUE(t.given.starts_with("3\n2\n"));
  EXPECT_EQ(std::count(t.given.begin(), t.given.end(), '\n'), 8);
  EXPECT_EQ(X.linid, 0);
}

TEST(Putlinsyz, CountsVectorsThatWereDroppedInTheirLengths) {
  const ring_in_force ring(101, 2);
  scheme X = with_generators({{5, 7}});
  const written one = by([&](std::ostream& out) { putlinsyz(out, X); });
  EXPECT_TRUE(one.given.starts_with("2\n1\n"));
  const ring_in_force space(101, 3);
  scheme Y = with_generators(ten_points);
  const written ten = by([&](std::ostream& out) { putlinsyz(out, Y); });
  EXPECT_EQ(Y.linres[0], (std::vector<int>{10, 15, 6}));
  EXPECT_TRUE(ten.given.starts_with("10\n15\n"));
  // 18 pairs made 15 syzygies: the vectors of the next level have length 18.
  EXPECT_NE(ten.err.find("[18][17]"), std::string::npos);
  EXPECT_NE(ten.given.find("\n18\n6\n"), std::string::npos);
}

TEST(DispLinid, ShowsZerosBeforeAnythingIsComputed) {
  const ring_in_force ring(101, 3);
  EXPECT_EQ(
      shown(disp_linid, {{1, 2, 3}}),
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
  scheme X = with_generators(triangle);
  const auto record = [&] {
    const silence quiet;
    std::ostringstream out;
    out << X;
    return out.str();
  };
  EXPECT_EQ(record().find("I_X | "), std::string::npos);
  by([&](std::ostream&) { linid(X); });
  EXPECT_TRUE(record().ends_with(table_of_triangle));
  by([&](std::ostream&) { linom(X); });
  EXPECT_EQ(record().find(table_of_triangle), std::string::npos);
  EXPECT_TRUE(record().ends_with(shown(disp_linres, X)));
}

TEST(Linid, OfMeaninglessPointsBreaksNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    by([&](std::ostream& out) { linsyz(out, X); });
    by([&](std::ostream& out) { putlinid(out, X); });
    EXPECT_EQ(X.linid, 1);
  });
}

}  // namespace
}  // namespace zep::tests
