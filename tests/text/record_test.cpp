#include "text/record.h"

#include <gtest/gtest.h>

#include "points/ideal/minimal_generators.h"
#include "points/ideal/socle.h"
#include "points/ring/ideal.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/general_position.h"
#include "points/walk/invariants.h"
#include "points/walk/separators.h"
#include "tests/points/computing.h"
#include "tests/points/everything.h"
#include "tests/points/point_sets.h"
#include "tests/points/shown.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

TEST(Invariants, ComputeWhatIsMissingAndEndWithLine) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(alpha_X, triangle), "alpha = 2\n" + line);
  EXPECT_EQ(shown(sigma_X, triangle), "sigma = 0\n" + line);
  EXPECT_EQ(shown(delta_X, triangle), "delta = 2\n" + line);
  EXPECT_EQ(shown(hilb_fct, triangle), "H(n) = 1 3 \n" + line);
  EXPECT_EQ(shown(delta_fct, triangle), "delta H(n) = 1 2 \n" + line);
  EXPECT_EQ(shown(order_ideal, triangle), "order ideal of X : \n1, Y, X\n" + line);
  EXPECT_EQ(shown(groebner, triangle),
            "Groebner basis of I(X) : \ng1 = Y^2 - Y\ng2 = XY\ng3 = X^2 - X\n" + line);
  EXPECT_EQ(shown(is_CB, triangle), "scheme has Cayley-Bacharach property\n" + line);
}

TEST(Invariants, OfOnePoint) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(sigma_X, {{3, 4}}), "sigma = -1\n" + line);
  EXPECT_EQ(shown(hilb_fct, {{3, 4}}), "H(n) = 1 \n" + line);
  EXPECT_EQ(shown(delta_fct, {{3, 4}}), "delta H(n) = 1 \n" + line);
}

TEST(Invariants, GoUpToTheDegreeFromWhichTheHilbertFunctionIsConstant) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {0, 1}, {1, 1}};
  EXPECT_EQ(shown(hilb_fct, points), "H(n) = 1 3 5 6 7 \n" + line);
  EXPECT_EQ(shown(delta_fct, points), "delta H(n) = 1 2 2 1 1 \n" + line);
  EXPECT_EQ(shown(order_ideal, points), "order ideal of X : \n1, Y, X, XY, X^2, X^3, X^4\n" + line);
}

TEST(Invariants, KeepListsOnOneLineHoweverLong) {
  const ring_in_force ring(101, 2);
  const std::vector<coordinates> points = points_on_curve(1, 100);
  std::string values;
  std::string differences;
  std::string monomials = "1, X";
  for (int n = 0; n < 100; ++n) {
    values += std::to_string(n + 1) + " ";
    differences += "1 ";
    if (n > 1) monomials += ", X^" + std::to_string(n);
  }
  EXPECT_EQ(shown(hilb_fct, points), "H(n) = " + values + "\n" + line);
  EXPECT_EQ(shown(delta_fct, points), "delta H(n) = " + differences + "\n" + line);
  EXPECT_EQ(shown(order_ideal, points), "order ideal of X : \n" + monomials + "\n" + line);
}

// From the tenth element on the label is wider.
TEST(Invariants, BreakLongBasisElementsBehindTheWidthOfTheLabel) {
  std::mt19937 random(4);
  line_ends seen;
  for (int round = 0; round < 40; ++round) {
    const ring_in_force ring(101, 3);
    const std::string text = shown(groebner, random_points(20 + round % 10, random));
    EXPECT_NE(text.find("\ng10 = "), std::string::npos);
    EXPECT_TRUE(breaks_where_it_must(text, seen)) << text;
  }
  EXPECT_GT(seen.full, 0);
  EXPECT_GT(seen.tight, 0);
}

// What their computations write comes first: a Line from Buchberger-Moeller, one from the
// separators.
TEST(Invariants, ArePrintedBehindWhatTheyMake) {
  const ring_in_force ring(101, 2);
  const auto expect = [](const std::string& before, display show) {
    scheme X = make_set(triangle);
    verbose = 0;
    const std::string screen = on_screen([&](std::ostream& out) { show(out, X); });
    verbose = 1;
    EXPECT_EQ(screen, before + shown(show, triangle));
  };
  for (const display show :
       {alpha_X, sigma_X, delta_X, hilb_fct, delta_fct, order_ideal, groebner, is_ar_Go}) {
    expect(line, show);
  }
  expect(line + line, is_CB);
  expect(line + line, disp_beta_matrix);
}

TEST(Invariants, OfNoPointsAreHeadingsWithNothingAndZeros) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(alpha_X, {}), "alpha = 0\n" + line);
  EXPECT_EQ(shown(sigma_X, {}), "sigma = 0\n" + line);
  EXPECT_EQ(shown(delta_X, {}), "delta = 0\n" + line);
  EXPECT_EQ(shown(hilb_fct, {}), "H(n) = 0 0 \n" + line);
  EXPECT_EQ(shown(delta_fct, {}), "delta H(n) = 0 0 \n" + line);
  EXPECT_EQ(shown(order_ideal, {}), "order ideal of X : \n\n" + line);
  EXPECT_EQ(shown(groebner, {}), "Groebner basis of I(X) : \n" + line);
  EXPECT_EQ(shown(lingenpos, {}), "scheme is in linearly general position\n" + line);
}

TEST(Invariants, TheCayleyBacharachVerdictMakesTheSeparatorsUnlessItIsKnown) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({{0, 0}, {1, 0}, {2, 0}, {0, 1}});
  EXPECT_EQ(shown(is_CB, X), "scheme has NOT Cayley-Bacharach property\n" + line);
  EXPECT_EQ(X.sep, 1);
  scheme Y = make_set(triangle);
  Y.is_CB = 1;
  EXPECT_EQ(shown(is_CB, Y), "scheme has Cayley-Bacharach property\n" + line);
  EXPECT_EQ(Y.sep, 0);
}

TEST(Record, GrowsWithTheResults) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  std::string order_ideal_on_screen;
  const auto record = [&] {
    const silence quiet;
    std::ostringstream out;
    out << X;
    EXPECT_EQ(quiet.out.text(), order_ideal_on_screen);
    return out.str();
  };
  const std::string points = "scheme consists of 3 points:\n<1:0:0><1:1:0><1:0:1>\n" + line;
  EXPECT_EQ(record(), points);
  order_ideal_on_screen = "order ideal of X : \n1, Y, X\n" + line;
  const std::string invariants = "H(n) = 1 3 \n" + line + "delta H(n) = 1 2 \n" + line +
                                 "sigma = 0\n" + line + "delta = 2\n" + line + "alpha = 2\n" + line;
  {
    const silence quiet;
    need_bu_mo(X);
  }
  EXPECT_EQ(record(), points + invariants);
  {
    const silence quiet;
    need_sep(X);
  }
  const std::string verdicts = "scheme has Cayley-Bacharach property\n" + line +
                               "scheme is NOT arithmetically Gorenstein\n" + line;
  EXPECT_EQ(record(), points + invariants + verdicts);
  const std::string socle_text = shown(disp_socle, X);
  EXPECT_EQ(record(), points + invariants + verdicts + socle_text);
  const std::string degrees = shown(deg_min, X);
  EXPECT_EQ(record(), points + invariants + verdicts + degrees + socle_text);
}

TEST(Record, HasTheOrderIdealInItsPlaceOnStandardOutput) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  shown(order_ideal, X);
  const std::string screen = on_screen([&](std::ostream& out) { out << X; });
  EXPECT_NE(screen.find("<1:0:1>\n" + line + "order ideal of X : \n1, Y, X\n" + line + "H(n) = "),
            std::string::npos)
      << screen;
}

// All that there is, in its order, with one table for both linear strands; but for the order ideal,
// which goes to standard output.
std::string plain_record(scheme& X) {
  std::ostringstream points;
  disp_scheme(points, X);
  std::string text =
      "scheme consists of " + std::to_string(X.s) + " points:\n" + points.str() + "\n" + line;
  const auto add = [&](bool is_there, display show) {
    if (is_there) text += shown(show, X);
  };
  for (const display show : {hilb_fct, delta_fct, sigma_X, delta_X, alpha_X}) {
    add(X.has_bu_mo, show);
  }
  add(X.sep == 1, is_CB);
  add(X.sep == 1, is_ar_Go);
  add(X.min_Ix.has_value(), deg_min);
  add(X.socle.has_value(), disp_socle);
  add(!X.pr.empty(), disp_omega);
  const bool both = X.linid != 0 && X.linom != 0;
  add(both, disp_linres);
  add(!both && X.linom != 0, disp_linom);
  add(!both && X.linid != 0, disp_linid);
  return text;
}

TEST(Record, ShowsWhateverThereIsInItsOrder) {
  const std::vector<void (*)(scheme&)> computations = {need_bu_mo, need_sep, min_Ix, socle,
                                                       omega,      linid,    linom};
  const ring_in_force ring(101, 2);
  for (const std::vector<coordinates>& points :
       {std::vector<coordinates>{}, triangle, points_on_curve(2, 6)}) {
    for (unsigned chosen = 0; chosen < 1U << computations.size(); ++chosen) {
      scheme X = make_set(points);
      {
        const silence quiet;
        for (std::size_t i = 0; i < computations.size(); ++i) {
          if ((chosen >> i & 1U) != 0) computations[i](X);
        }
      }
      const std::string before = contents(X);
      const std::string order_ideal_text = X.has_bu_mo ? shown(order_ideal, X) : "";
      const silence quiet;
      std::ostringstream out;
      out << X;
      EXPECT_EQ(out.str(), plain_record(X)) << "after computations " << chosen;
      EXPECT_EQ(quiet.out.text(), order_ideal_text);
      EXPECT_EQ(quiet.err.text(), "");
      EXPECT_EQ(contents(X), before);
    }
  }
}

TEST(Ideal, PrintsAGeneratorALine) {
  const ring_in_force ring(101, 2);
  ideal I(2);
  I.gen[1] = polynomial(variable(0));
  std::ostringstream out;
  out << I;
  EXPECT_EQ(I.no_of_gens(), 2);
  EXPECT_EQ(out.str(), " 0\nX\n");
}

// The rule straight away: some choice of min(s, n + 1) points has a non-zero determinant.
bool plainly_independent_subset(const std::vector<coordinates>& points) {
  const std::size_t size = std::min<std::size_t>(points.size(), dim + 1);
  std::vector<bool> chosen(points.size(), false);
  std::fill(chosen.begin(), chosen.begin() + static_cast<std::ptrdiff_t>(size), true);
  do {
    plain_echelon rows;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (!chosen[i]) continue;
      coordinates row = points[i];
      row.insert(row.begin(), 1);
      rows.add(row);
    }
    if (rows.rank() == static_cast<int>(size)) return true;
  } while (std::prev_permutation(chosen.begin(), chosen.end()));
  return false;
}

TEST(GeneralPosition, HoldsWhenOneSubsetIsIndependent) {
  const ring_in_force ring(101, 3);
  const std::string yes = "scheme is in linearly general position\n" + line;
  const std::string no = "scheme is not in linearly general position\n" + line;
  EXPECT_EQ(shown(lingenpos, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}), yes);
  EXPECT_EQ(shown(lingenpos, {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}}), no);
  EXPECT_EQ(shown(lingenpos, {{5, 5, 5}}), yes);
  EXPECT_EQ(shown(lingenpos, {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0}}),
            yes);
}

TEST(GeneralPosition, AgreesWithTheWalkOverAllSubsets) {
  std::mt19937 random(9);
  int yes = 0;
  int no = 0;
  for (int round = 0; round < 200; ++round) {
    const ring_in_force ring(round % 2 == 0 ? 2 : 3, 2 + round % 3);
    std::vector<coordinates> points = random_points(1 + round % 6, random);
    if (round % 5 < 2) {
      for (coordinates& point : points) point.back() = point.front();
    }
    const bool expected = plainly_independent_subset(points);
    EXPECT_EQ(has_independent_subset(make_set(points)), expected);
    ++(expected ? yes : no);
  }
  EXPECT_GT(yes, 10);
  EXPECT_GT(no, 10);
}

}  // namespace
}  // namespace zep::tests
