#include "points/walk/uniformity.h"

#include <gtest/gtest.h>

#include "points/walk/beta_matrix.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/separators.h"
#include "tests/draw.h"
#include "tests/points/everything.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

// What a test prints, on a set that knows its points only.
std::string delta_verdict(scheme& X) {
  const silence quiet;
  std::ostringstream out;
  is_delta_uf(out, X);
  return out.str();
}

std::string n_verdict(scheme& X, int n) {
  const silence quiet;
  std::ostringstream out;
  is_n_uf(out, X, n);
  return out.str();
}

// Runs quietly while it lives.
class hush {
 public:
  hush() { verbose = 0; }
  ~hush() { verbose = 1; }
  hush(const hush&) = delete;
  hush& operator=(const hush&) = delete;
};

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};
// Three points on one line and two on another: the separators of the second and third point have
// proportional leading forms.
const std::vector<coordinates> two_lines = {{0, 0}, {1, 0}, {2, 0}, {0, 1}, {0, 2}};
// A conic that vanishes at all points but the last separates it, so its leading form is 0.
const std::vector<coordinates> one_off_two_lines = {{0, 0}, {1, 0}, {2, 0}, {3, 0},
                                                    {0, 1}, {0, 2}, {0, 3}, {1, 1}};
// Sets with delta = 1, the first with the Cayley-Bacharach property.
const std::vector<coordinates> one_line = {{0, 0}, {1, 0}, {2, 0}};
const std::vector<coordinates> one_off_the_line = {{0, 0}, {1, 0}, {2, 0}, {0, 1}};

// A set for which `make` has been computed, and nothing else.
template <class Make>
scheme set_with(Make make, const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  make(X);
  return X;
}

TEST(DeltaUniformity, IsDecidedByCayleyBacharachWhenDeltaIsOne) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(one_line);
  EXPECT_EQ(delta_verdict(X),
            "scheme has Cayley-Bacharach property\n"
            "since delta = 1, scheme has also delta uniform property\nand is even 2-uniform\n" +
                line);
  scheme Y = make_set(one_off_the_line);
  EXPECT_EQ(delta_verdict(Y),
            "scheme has NOT Cayley-Bacharach property\n"
            "hence it cannot have delta uniform property\n" +
                line);
}

TEST(DeltaUniformity, CountsDownAndEndsTheLineBeforeTheVerdict) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  EXPECT_EQ(delta_verdict(X), "[2][1]\nscheme has delta uniform property\n" + line);
  scheme Y = make_set(two_lines);
  EXPECT_EQ(delta_verdict(Y),
            "[4]\nlinear dependence between f2, f3, \ntherefore \n"
            "scheme has NOT delta uniform property\n" +
                line);
}

TEST(DeltaUniformity, SaysTheSameQuietlyWithoutTheLineEnd) {
  const ring_in_force ring(101, 2);
  const hush quiet;
  scheme X = make_set(triangle);
  EXPECT_EQ(delta_verdict(X), "scheme has delta uniform property\n" + line);
  scheme Y = make_set(two_lines);
  EXPECT_EQ(delta_verdict(Y),
            "\nlinear dependence between f2, f3, \ntherefore "
            "scheme has NOT delta uniform property\n" +
                line);
}

TEST(DeltaUniformity, NamesTheFirstSeparatorsWithoutACountdownWhenTheyDepend) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{1, 0}, {2, 0}, {0, 0}, {0, 1}, {0, 2}});
  EXPECT_EQ(delta_verdict(X),
            "\nlinear dependence between f1, f2, \ntherefore \n"
            "scheme has NOT delta uniform property\n" +
                line);
}

TEST(NUniformity, IsRefusedForNBelowOne) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  for (const int n : {0, -1, -2147483647 - 1}) {
    EXPECT_EQ(n_verdict(X, n), "n-unifomity only defined for n > 0 !!!\n" + line);
  }
  EXPECT_EQ(contents(X), contents(make_set(triangle)));
}

TEST(NUniformity, IsRefusedForNAboveDelta) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  for (const int n : {3, 2147483647}) {
    EXPECT_EQ(n_verdict(X, n),
              "sorry, but checking n-unifomity for n > delta is not supported yet\n" + line);
  }
  EXPECT_EQ(contents(X), contents(set_with(need_bu_mo, triangle)));
}

TEST(NUniformity, ForNEqualToDeltaIsDeltaUniformity) {
  const ring_in_force ring(101, 2);
  for (const auto& points : {triangle, two_lines, one_line, one_off_the_line}) {
    scheme X = make_set(points);
    scheme Y = X;
    EXPECT_EQ(n_verdict(X, set_with(need_bu_mo, points).delta), delta_verdict(Y));
    EXPECT_EQ(contents(X), contents(Y));
  }
}

TEST(NUniformity, OpensItsPositiveVerdictWithALineEnd) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  EXPECT_EQ(n_verdict(X, 1), "[3][2][1]\nscheme has 1-uniform property\n" + line);
  const hush quiet;
  EXPECT_EQ(n_verdict(X, 1), "\nscheme has 1-uniform property\n" + line);
}

TEST(NUniformity, ForOneNamesTheFirstZeroRow) {
  const ring_in_force ring(101, 3);
  const std::vector<coordinates> points = {{1, 0, 1}, {0, 0, 1}, {2, 1, 0},
                                           {0, 0, 2}, {0, 1, 2}, {2, 2, 0}};
  scheme X = make_set(points);
  EXPECT_EQ(n_verdict(X, 1),
            "[6]\nlinear dependence between f2, \ntherefore "
            "scheme has NOT 1-uniform property\n" +
                line);
  for (int l = 0; l < X.delta; ++l) EXPECT_EQ((*X.beta_matrix)[1][l], Fp8(0));
}

TEST(Uniformity, MakesItsPrerequisitesOnce) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  const silence loud;
  std::ostringstream out;
  is_delta_uf(out, X);
  is_delta_uf(out, X);
  is_n_uf(out, X, 1);
  EXPECT_EQ(loud.out.text(), line + line);
  EXPECT_EQ(loud.err.text(),
            "calculating triangular sequence ...\n[3][2][1]\n"
            "calculating biorthogonal sequence ...\n[3][2][1]\n"
            "calculating beta matrix ...\n[2][1]\n");
}

TEST(Uniformity, StoresNothingButItsPrerequisites) {
  const ring_in_force ring(101, 2);
  for (const auto& points : {triangle, two_lines, one_off_two_lines}) {
    const std::string prerequisites = contents(set_with(beta_matrix, points));
    scheme X = make_set(points);
    delta_verdict(X);
    EXPECT_EQ(contents(X), prerequisites);
    scheme Y = make_set(points);
    n_verdict(Y, 1);
    EXPECT_EQ(contents(Y), prerequisites);
  }
  for (const auto& points : {one_line, one_off_the_line}) {
    scheme X = make_set(points);
    delta_verdict(X);
    EXPECT_EQ(contents(X), contents(set_with(need_sep, points)));
  }
}

TEST(Uniformity, OfNoPointsDoesNotFail) {
  const ring_in_force ring(101, 2);
  scheme X(0);
  EXPECT_EQ(delta_verdict(X), "\nscheme has delta uniform property\n" + line);
  EXPECT_EQ(n_verdict(X, 1),
            "sorry, but checking n-unifomity for n > delta is not supported yet\n" + line);
}

TEST(Uniformity, SurvivesMeaninglessData) {
  std::mt19937 random(5);
  for (const int p : {4, 6, 9, 250}) {
    const ring_in_force ring(p, 2);
    scheme X = make_set(random_points(12, random));
    EXPECT_NE(delta_verdict(X), "");
    for (int n = 1; n < X.delta; ++n) EXPECT_NE(n_verdict(X, n), "");
  }
  const ring_in_force ring(101, 2);
  scheme repeated = make_set({{1, 1}, {2, 2}, {1, 1}, {0, 3}, {0, 3}});
  EXPECT_NE(delta_verdict(repeated), "");
}

}  // namespace
}  // namespace zep::tests
