// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/buchberger_moeller.h"

#include <gtest/gtest.h>

#include <optional>

#include "arith/list.h"
#include "reference/candidates.h"
#include "tests/points/plain_walk.h"
#include "tests/points/point_sets.h"
#include "tests/points/printed.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

std::vector<std::string> printed_basis(const points::order_ideal& X) {
  std::vector<std::string> basis;
  for (int g = 0; g < X.Ix.no_of_gens(); ++g) basis.push_back(printed(groebner_element(X, g)));
  return basis;
}

std::vector<std::string> printed_monomials(const std::vector<monom>& monomials) {
  std::vector<std::string> names;
  for (const monom& t : monomials) names.push_back(printed(polynomial(t)));
  return names;
}

using names = std::vector<std::string>;

TEST(BuMo, OfOnePointFindsTheDifferencesToItsCoordinates) {
  const ring_in_force ring(101, 3);
  told reporter;
  const points::order_ideal X = bu_mo(rows_of({{5, 95, 7}}), reporter);
  EXPECT_EQ(printed_monomials(X.O), names{"1"});
  EXPECT_EQ(printed_basis(X), (names{"Z-7", "Y+6", "X-5"}));
  EXPECT_EQ(printed_monomials(X.B), (names{"Z", "Y", "X"}));
  EXPECT_EQ(reporter.err, "calculating triangular sequence ...\n[1]\n");
}

TEST(BuMo, OfPointsThatDifferInTheLastCoordinateFindsItsPowers) {
  const ring_in_force ring(101, 3);
  const points::order_ideal X = walked({{4, 9, 1}, {4, 9, 7}, {4, 9, 0}, {4, 9, 100}});
  EXPECT_EQ(printed_monomials(X.O), (names{"1", "Z", "Z2", "Z3"}));
  const names basis = printed_basis(X);
  ASSERT_EQ(basis.size(), 3U);
  EXPECT_EQ(basis[0], "Y-9");
  EXPECT_EQ(basis[1], "X-4");
  EXPECT_EQ(basis[2].substr(0, 2), "Z4");
}

TEST(BuMo, TellsOfEachMemberOfTheOrderIdealAndOfItsEnd) {
  const ring_in_force ring(101, 2);
  told reporter;
  bu_mo(rows_of({{0, 0}, {1, 0}, {0, 1}}), reporter);
  EXPECT_EQ(reporter.out, line);
  EXPECT_EQ(reporter.err, "calculating triangular sequence ...\n[3][2][1]\n");
}

TEST(BuMo, OfNoPointsTellsOfItsEndAllTheSame) {
  const ring_in_force ring(101, 2);
  told reporter;
  bu_mo(rows_of({}), reporter);
  EXPECT_EQ(reporter.out, line);
  EXPECT_EQ(reporter.err, "calculating triangular sequence ...\n\n");
}

TEST(BuMo, FindsTheSameWhoeverListens) {
  std::mt19937 random(19);
  const ring_in_force ring(101, 3);
  const matrix P = rows_of(random_points(150, random));
  told attentive;
  told inattentive(false);
  const points::order_ideal X = bu_mo(P, attentive);
  const points::order_ideal Y = bu_mo(P, inattentive);
  EXPECT_EQ(X.O, Y.O);
  EXPECT_EQ(X.B, Y.B);
  EXPECT_EQ(printed_basis(X), printed_basis(Y));
  EXPECT_EQ(X.separator, Y.separator);
}

TEST(BuMo, OfNoPointsFindsNothing) {
  const ring_in_force ring(101, 3);
  const points::order_ideal X = walked({});
  EXPECT_EQ(X.s(), 0);
  EXPECT_EQ(X.no_of_border(), 0);
  EXPECT_TRUE(X.O.empty());
  EXPECT_TRUE(X.B.empty());
  EXPECT_EQ(X.Ix.no_of_gens(), 0);
}

TEST(BuMo, OfRepeatedPointsFillsTheOrderIdealUpWithOnes) {
  const ring_in_force ring(101, 2);
  told reporter;
  const points::order_ideal X = bu_mo(rows_of({{0, 0}, {0, 0}, {1, 0}, {0, 0}}), reporter);
  EXPECT_EQ(printed_monomials(X.O), (names{"1", "X", "1", "1"}));
  EXPECT_EQ(printed_basis(X), (names{"Y", "X2-X"}));
  EXPECT_EQ(reporter.err, "calculating triangular sequence ...\n[4][3]\n");
}

TEST(BuMo, TakesTwoHundredPointsOnALine) {
  for (const int n : {2, 3}) {
    const ring_in_force ring(251, n);
    std::vector<coordinates> points;
    for (int i = 0; i < 200; ++i) {
      coordinates point(n, 3);
      point[0] = i;
      points.push_back(point);
    }
    const points::order_ideal X = walked(points);
    EXPECT_EQ(printed(polynomial(X.O.back())), "X199");
    const polynomial last = groebner_element(X, X.Ix.no_of_gens() - 1);
    EXPECT_EQ(last.term(0).exp(0), 200);
    for (const coordinates& point : points) EXPECT_EQ(value_at(last, point), 0);
    EXPECT_EQ(X.H.sigma, 198);
  }
}

void expect_basis(const points::order_ideal& X, const plain_walk& plain) {
  ASSERT_EQ(X.Ix.no_of_gens(), static_cast<int>(plain.leads.size()));
  for (int g = 0; g < X.Ix.no_of_gens(); ++g) {
    EXPECT_EQ(X.Ix.lead(g), plain.leads[g]);
    EXPECT_EQ(elements_of(X.Ix.tail(g)), plain.tails[g]);
  }
}

// O, border, Groebner basis and separators are those of the plain algorithm.
void expect_as_in_the_plain_walk(const std::vector<coordinates>& points) {
  const matrix P = rows_of(points);
  const points::order_ideal X = bu_mo(P, nobody());
  const plain_walk plain(P);
  EXPECT_EQ(printed_monomials(X.O), printed_monomials(plain.O));
  EXPECT_EQ(printed_monomials(X.B), printed_monomials(plain.B));
  expect_basis(X, plain);
  const std::vector<plain_walk::row> separators = plain.separators();
  for (int i = 0; i < X.s(); ++i) {
    EXPECT_EQ(elements_of(X.separator[i]), separators[i]);
  }
}

// The sizes stand around the number of candidates that are decided together, and around the widths
// of the loops.
TEST(BuMo, IsThePlainAlgorithmOnRandomPointsOfAnyNumber) {
  std::mt19937 random(21);
  for (const int p : {2, 3, 127, 251}) {
    for (const int s : {1, 2, 3, 5, 16, 17, 64, 65, 129, 257}) {
      for (const int n : {2, 3, 9}) {
        const ring_in_force ring(p, n, s % 2 == 0 ? term_order::deglex : term_order::degrevlex);
        expect_as_in_the_plain_walk(random_points(s, random));
      }
    }
  }
}

TEST(BuMo, IsThePlainAlgorithmOnSpecialPoints) { for_each_set(expect_as_in_the_plain_walk); }

TEST(BuMo, IsThePlainAlgorithmOnMeaninglessPointsButForSeparators) {
  int filled_up = 0;
  for_each_meaningless_set([&](const std::vector<coordinates>& points) {
    const matrix P = rows_of(points);
    const points::order_ideal X = bu_mo(P, nobody());
    const plain_walk plain(P);
    std::vector<monom> O = plain.O;
    filled_up += std::ssize(O) < X.s() ? 1 : 0;
    O.resize(X.s());
    EXPECT_EQ(printed_monomials(X.O), printed_monomials(O));
    EXPECT_EQ(printed_monomials(X.B), printed_monomials(plain.B));
    expect_basis(X, plain);
  });
  EXPECT_GT(filled_up, 50);
}

// The walk with all candidates in one list, where `element` counts the ways to reach each. Which of
// them are independent is looked up in an order ideal that is known.
class walk_over_a_list {
 public:
  explicit walk_over_a_list(const points::order_ideal& X) {
    candidates_.add({.t = monom(), .n = -1, .k = -1, .ins = 0});
    while (!candidates_.empty()) {
      mmm m;
      candidates_.min_del(m);
      const bool is_open = m.ins == m.t.vars();
      if (is_open && X.O_index.find(m.t) >= 0) {
        join(m.t);
      } else {
        B.push_back(m.t);
        if (is_open) leads.push_back(m.t);
      }
    }
  }

  std::vector<monom> O;
  std::vector<monom> B;
  std::vector<monom> leads;
  // So often `element` credited the last candidate, that is, none that stays in the list.
  int lost = 0;

 private:
  void join(const monom& t) {
    for (int k = 0; k < dim; ++k) {
      mmm next{.t = t * variable(k), .n = static_cast<int>(O.size()), .k = k, .ins = 0};
      if (element(candidates_, next)) {
        lost += next.ins;
      } else {
        next.ins = 1;
        candidates_.add(next);
      }
    }
    O.push_back(t);
  }

  list<mmm> candidates_;
};

// The product with the first variable is new and is made first, so that no later one is found at
// the end of the list.
TEST(BuMo, IsTheWalkOverAListWhereNoCountIsLost) {
  for_each_set([](const std::vector<coordinates>& points) {
    const points::order_ideal X = walked(points);
    const walk_over_a_list walk(X);
    EXPECT_EQ(walk.lost, 0);
    EXPECT_EQ(walk.O, X.O);
    EXPECT_EQ(walk.B, X.B);
    ASSERT_EQ(static_cast<int>(walk.leads.size()), X.Ix.no_of_gens());
    for (int g = 0; g < X.Ix.no_of_gens(); ++g) EXPECT_EQ(walk.leads[g], X.Ix.lead(g));
  });
}

TEST(BuMo, SurvivesEveryCompositeCharacteristic) {
  std::mt19937 random(7);
  for (const int p : {4, 6, 8, 9, 15, 128, 249, 250}) {
    const ring_in_force ring(p, 3);
    const std::vector<coordinates> points = random_points(20, random);
    const points::order_ideal X = walked(points);
    EXPECT_EQ(X.s(), std::ssize(points));
    EXPECT_EQ(X.separator.rows(), X.s());
  }
}

// One random set of points in one ring.
struct setting {
  int p;
  int n;
  term_order order;
  int s;
};

class BuMoProperty : public ::testing::TestWithParam<setting> {
 protected:
  void SetUp() override {
    points_ = random_points(GetParam().s, random_);
    X_.emplace(walked(points_));
  }

  const ring_in_force ring_{GetParam().p, GetParam().n, GetParam().order};
  std::mt19937 random_{static_cast<unsigned>(GetParam().p * 1000 + GetParam().n)};
  std::vector<coordinates> points_;
  std::optional<points::order_ideal> X_;
};

TEST_P(BuMoProperty, TheOrderIdealIsTheFirstIndependentMonomials) {
  std::vector<exponents> O;
  for (const monom& t : X_->O) O.push_back(exponents_of(t));
  EXPECT_EQ(O, plain_facts(points_).order_ideal);
}

TEST_P(BuMoProperty, TheBorderIsWhatTheOrderIdealReachesOutsideItself) {
  std::set<exponents> O;
  for (const monom& t : X_->O) O.insert(exponents_of(t));
  std::set<exponents> border;
  for (const exponents& o : O) {
    for (std::size_t j = 0; j < o.size(); ++j) {
      exponents t = o;
      ++t[j];
      if (!O.contains(t)) border.insert(t);
      if (o[j] == 0) continue;
      t[j] -= 2;
      EXPECT_TRUE(O.contains(t)) << "not closed under division";
    }
  }
  std::set<exponents> B;
  for (const monom& t : X_->B) B.insert(exponents_of(t));
  EXPECT_EQ(B, border);
  EXPECT_EQ(X_->B.size(), border.size());
  EXPECT_TRUE(std::is_sorted(X_->B.begin(), X_->B.end(), monom_ordering_lt));
}

TEST_P(BuMoProperty, LeadingMonomialsAreTheMinimalOnesOfTheBorder) {
  std::set<exponents> minimal;
  for (const monom& t : X_->B) {
    const exponents e = exponents_of(t);
    const bool is_minimal = std::none_of(X_->B.begin(), X_->B.end(), [&](const monom& other) {
      const exponents o = exponents_of(other);
      return o != e && divides(o, e);
    });
    if (is_minimal) minimal.insert(e);
  }
  std::set<exponents> leads;
  for (int g = 0; g < X_->Ix.no_of_gens(); ++g) {
    leads.insert(exponents_of(X_->Ix.lead(g)));
    if (g > 0) {
      EXPECT_TRUE(monom_ordering_lt(X_->Ix.lead(g - 1), X_->Ix.lead(g)));
    }
  }
  EXPECT_EQ(leads, minimal);
}

TEST_P(BuMoProperty, TheBasisIsReducedMonicAndVanishes) {
  const std::set<exponents> O = [&] {
    std::set<exponents> standard;
    for (const monom& t : X_->O) standard.insert(exponents_of(t));
    return standard;
  }();
  for (int g = 0; g < X_->Ix.no_of_gens(); ++g) {
    const polynomial f = groebner_element(*X_, g);
    EXPECT_EQ(f.coef(0), Fp8(1));
    for (int i = 1; i < f.no_of_monoms(); ++i) {
      EXPECT_TRUE(monom_ordering_lt(f.term(i), f.term(i - 1)));
      EXPECT_NE(f.coef(i), Fp8(0));
      EXPECT_TRUE(O.contains(exponents_of(f.term(i))));
    }
    for (const coordinates& point : points_) EXPECT_EQ(value_at(f, point), 0);
  }
}

TEST_P(BuMoProperty, NothingDependsOnTheOrderOfThePoints) {
  std::shuffle(points_.begin(), points_.end(), random_);
  const points::order_ideal Y = walked(points_);
  EXPECT_EQ(printed_monomials(Y.O), printed_monomials(X_->O));
  EXPECT_EQ(printed_monomials(Y.B), printed_monomials(X_->B));
  EXPECT_EQ(printed_basis(Y), printed_basis(*X_));
}

std::vector<setting> settings() {
  std::vector<setting> all;
  for (const int p : {2, 3, 101, 251}) {
    for (int n = 2; n <= 6; ++n) {
      for (const term_order order : {term_order::deglex, term_order::degrevlex}) {
        all.push_back({p, n, order, 8 + 5 * n});
      }
    }
  }
  return all;
}

std::string name_of(const setting& s) {
  return "F" + std::to_string(s.p) + "P" + std::to_string(s.n) +
         (s.order == term_order::deglex ? "Deglex" : "Degrevlex");
}

INSTANTIATE_TEST_SUITE_P(RandomSets, BuMoProperty, ::testing::ValuesIn(settings()),
                         [](const auto& test) { return name_of(test.param); });

}  // namespace
}  // namespace zep::tests
