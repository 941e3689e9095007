#include "scheme/uniformity.h"

#include <gtest/gtest.h>

#include "scheme/beta_matrix.h"
#include "scheme/bu_mo.h"
#include "scheme/separators.h"
#include "tests/draw.h"
#include "tests/scheme/everything.h"
#include "tests/scheme/point_sets.h"

namespace zep {
namespace {

using subset = std::vector<int>;

// One carry of the walk over the k-subsets of s rows, as a clockwork of k digits under the bound s:
// the lowest place moves fastest. False when there is no next subset.
bool advance(subset& c, int s, std::vector<int>& advances) {
  const int k = static_cast<int>(c.size());
  for (int i = 0; i < k; ++i) {
    ++c[at(i)];
    if (i == k - 1) advances.push_back(c[at(i)]);
    if (c[at(i)] != (i == k - 1 ? s : c[at(i + 1)])) return true;
    c[at(i)] = i;
  }
  return false;
}

struct walk_result {
  std::optional<subset> dependent;
  std::vector<int> advances;

  bool operator==(const walk_result&) const = default;
};

// Every subset from scratch.
walk_result plain_walk(const matrix& m, int k) {
  walk_result result;
  subset c(at(k));
  for (int i = 0; i < k; ++i) c[at(i)] = i;
  do {
    plain_echelon rows;
    for (const int i : c) {
      std::vector<int> row;
      for (const Fp8 x : m.row(i)) row.push_back(x.value());
      rows.add(row);
    }
    if (rows.rank() < k) {
      result.dependent = c;
      return result;
    }
  } while (advance(c, m.rows(), result.advances));
  return result;
}

walk_result fast_walk(const matrix& m, int k) {
  walk_result result;
  result.dependent =
      first_dependent_subset(m, k, [&](int last) { result.advances.push_back(last); });
  return result;
}

matrix random_matrix(int cols, int rows, std::mt19937& random) {
  matrix m(cols, rows);
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < cols; ++j) m[i][j] = below(random, Fp8::prime);
  }
  return m;
}

TEST(SubsetWalk, FindsTheFirstDependentSubsetAndAnnouncesEveryMoveOfTheLastRow) {
  std::mt19937 random(1);
  int dependent = 0;
  int independent = 0;
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p, 3);
    for (int round = 0; round < 150; ++round) {
      const int cols = 1 + below(random, 5);
      const int rows = cols + below(random, 7);
      const matrix m = random_matrix(cols, rows, random);
      for (int k = 1; k <= cols; ++k) {
        const walk_result expected = plain_walk(m, k);
        EXPECT_EQ(fast_walk(m, k), expected);
        ++(expected.dependent ? dependent : independent);
      }
    }
  }
  EXPECT_GT(dependent, 100);
  EXPECT_GT(independent, 100);
}

TEST(SubsetWalk, FindsDependenceThatIsHiddenInOnePlace) {
  std::mt19937 random(2);
  const ring_in_force ring(251, 3);
  for (int round = 0; round < 60; ++round) {
    matrix m = random_matrix(4, 10, random);
    const int k = 2 + round % 3;
    // The last row of a random subset becomes the sum of the others.
    std::vector<int> rows = identity_order(10);
    std::shuffle(rows.begin(), rows.end(), random);
    for (int j = 0; j < 4; ++j) {
      Fp8 sum;
      for (int i = 1; i < k; ++i) sum += m[rows[at(i)]][j];
      m[rows[0]][j] = sum;
    }
    EXPECT_EQ(fast_walk(m, k), plain_walk(m, k));
  }
}

TEST(SubsetWalk, TakesLargeSubsets) {
  std::mt19937 random(4);
  int dependent = 0;
  int independent = 0;
  for (const int p : {2, 251}) {
    const ring_in_force ring(p, 3);
    for (int round = 0; round < 12; ++round) {
      const int k = 23 + round % 6;
      matrix m = random_matrix(k + round % 3, k + 2, random);
      if (round % 4 == 1) {
        // Only subsets that leave out one of the first rows are independent.
        std::copy(m.row(0).begin(), m.row(0).end(), m[2]);
      }
      const walk_result expected = plain_walk(m, k);
      EXPECT_EQ(fast_walk(m, k), expected);
      ++(expected.dependent ? dependent : independent);
    }
  }
  EXPECT_GT(dependent, 2);
  EXPECT_GT(independent, 2);
}

TEST(SubsetWalk, FindsTheLastOfLargeSubsets) {
  const ring_in_force ring(251, 3);
  std::mt19937 random(6);
  // Rows 2 .. 28 are dependent, and no other 27 rows are.
  matrix m = random_matrix(27, 29, random);
  for (int j = 0; j < 27; ++j) {
    Fp8 sum;
    for (int i = 2; i < 28; ++i) sum += m[i][j];
    m[28][j] = sum;
  }
  const walk_result expected = plain_walk(m, 27);
  ASSERT_TRUE(expected.dependent.has_value());
  EXPECT_EQ(fast_walk(m, 27), expected);
}

TEST(SubsetWalk, AgreesWithDeterminants) {
  std::mt19937 random(3);
  const ring_in_force ring(7, 3);
  const std::vector<int> columns = identity_order(3);
  for (int round = 0; round < 200; ++round) {
    const matrix m = random_matrix(3, 6, random);
    const walk_result found = fast_walk(m, 3);
    if (found.dependent) {
      EXPECT_EQ(m.minor(columns, *found.dependent), Fp8(0));
    }
    std::vector<int> advances;
    subset c = {0, 1, 2};
    while (c != found.dependent) {
      EXPECT_NE(m.minor(columns, c), Fp8(0));
      if (!advance(c, 6, advances)) break;
    }
  }
}

TEST(SubsetWalk, AgreesWithTheSolutionSpacesOfTheChosenRows) {
  std::mt19937 random(7);
  const ring_in_force ring(3, 3);
  for (int round = 0; round < 100; ++round) {
    const matrix m = random_matrix(5, 8, random);
    const int k = 1 + round % 4;
    const walk_result found = fast_walk(m, k);
    subset c = identity_order(k);
    std::vector<int> advances;
    bool dependent = false;
    do {
      matrix chosen(5, k);
      for (int i = 0; i < k; ++i) {
        std::copy(m.row(c[at(i)]).begin(), m.row(c[at(i)]).end(), chosen[i]);
      }
      std::vector<int> columns = identity_order(5);
      std::vector<int> rows = identity_order(k);
      dependent = chosen.solve(columns, rows) > 5 - k;
    } while (!dependent && advance(c, 8, advances));
    EXPECT_EQ(found.dependent, dependent ? std::optional(c) : std::nullopt);
  }
}

TEST(SubsetWalk, FindsAZeroRow) {
  const ring_in_force ring(101, 3);
  matrix m(2, 4);
  for (const int i : {0, 1, 3}) m[i][i % 2] = 1;
  EXPECT_EQ(fast_walk(m, 1).dependent, subset{2});
  EXPECT_EQ(fast_walk(m, 2).dependent, (subset{0, 2}));
}

TEST(SubsetWalk, TakesAllRowsTogether) {
  const ring_in_force ring(101, 3);
  matrix m(3, 3);
  for (int i = 0; i < 3; ++i) m[i][i] = 5;
  const walk_result found = fast_walk(m, 3);
  EXPECT_FALSE(found.dependent.has_value());
  EXPECT_EQ(found.advances, std::vector<int>{3});
}

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
}  // namespace zep
