// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/record/scheme.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/paranoid.h"
#include "tests/points/computing.h"
#include "tests/points/everything.h"
#include "tests/points/point_sets.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

// What the steps tell on their way, for a triangle.
const std::string walk_told = "calculating triangular sequence ...\n[3][2][1]\n";
const std::string separators_told = "calculating biorthogonal sequence ...\n[3][2][1]\n";
const std::string beta_matrix_told = "calculating beta matrix ...\n[2][1]\n";

TEST(Scheme, StartsWithItsPointsAndNoResults) {
  const ring_in_force ring(101, 3);
  const matrix P = rows_of({{1, 2, 3}, {4, 5, 6}});
  const scheme X(P, nobody());
  EXPECT_EQ(X.s(), 2);
  EXPECT_EQ(X.P(), P);
  EXPECT_EQ(contents(X.known()), contents(results(3)));
}

TEST(Scheme, WithoutPointsIsASetToo) {
  const ring_in_force ring(101, 2);
  scheme X = make_set({});
  EXPECT_EQ(X.s(), 0);
  for (const named_command& computation : all_computations()) {
    std::ostringstream dropped;
    EXPECT_NO_THROW(computation.run(dropped, X)) << computation.name;
  }
  EXPECT_EQ(X.bu_mo().s(), 0);
  EXPECT_EQ(X.omega().no_of_pr(), 0);
}

TEST(Scheme, TellsNothingAndMakesNothingBeforeItIsAsked) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  EXPECT_EQ(set.X.known().bu_mo, nullptr);
  EXPECT_EQ(set.reporter.out + set.reporter.err, "");
}

// Each result by its address.
const std::vector<std::pair<const char*, std::function<const void*(scheme&)>>> all_results = {
    {"bu_mo", [](scheme& X) { return static_cast<const void*>(&X.bu_mo()); }},
    {"sep", [](scheme& X) { return static_cast<const void*>(&X.sep()); }},
    {"beta_matrix", [](scheme& X) { return static_cast<const void*>(&X.beta_matrix()); }},
    {"Can_Lf", [](scheme& X) { return static_cast<const void*>(&X.Can_Lf()); }},
    {"min_Ix", [](scheme& X) { return static_cast<const void*>(&X.min_Ix()); }},
    {"socle", [](scheme& X) { return static_cast<const void*>(&X.socle()); }},
    {"omega", [](scheme& X) { return static_cast<const void*>(&X.omega()); }},
};

TEST(Scheme, MakesEachResultOnce) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  for (const auto& [name, result] : all_results) {
    SCOPED_TRACE(name);
    const void* const first = result(set.X);
    set.reporter.forget();
    EXPECT_EQ(result(set.X), first);
    EXPECT_EQ(set.reporter.out + set.reporter.err, "");
  }
}

TEST(Scheme, KeepsItsResultsWhateverIsMadeLater) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  std::vector<const void*> first;
  for (const auto& [name, result] : all_results) first.push_back(result(X));
  std::ostringstream dropped;
  for (const named_command& computation : all_computations()) computation.run(dropped, X);
  for (std::size_t i = 0; i < first.size(); ++i) {
    EXPECT_EQ(all_results[i].second(X), first[i]) << all_results[i].first;
  }
}

TEST(Scheme, SharesItsResultsWithItsCopies) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  for (const auto& [name, result] : all_results) {
    SCOPED_TRACE(name);
    const void* const first = result(set.X);
    scheme copy = set.X;
    set.reporter.forget();
    EXPECT_EQ(result(copy), first);
    EXPECT_EQ(set.reporter.out + set.reporter.err, "");
  }
}

TEST(Scheme, LeavesWhatItMakesLaterToItselfWhenItIsCopied) {
  const ring_in_force ring(101, 2);
  scheme X = make_set(triangle);
  scheme copy = X;
  X.sep();
  EXPECT_EQ(copy.known().bu_mo, nullptr);
  EXPECT_EQ(copy.known().sep, nullptr);
  EXPECT_FALSE(copy.known().is_CB);
}

TEST(Scheme, BringsBackWhatWasKnown) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  set.X.bu_mo();
  const results before = set.X.known();
  set.X.sep();
  set.X.linid();
  set.X.restore(before);
  EXPECT_EQ(contents(set.X.known()), contents(before));
  // What has been taken back is made again.
  set.reporter.forget();
  set.X.sep();
  EXPECT_EQ(set.reporter.err, separators_told);
}

TEST(Scheme, TakesResultsThatItHasNotMade) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  results known = set.X.known();
  ideal one_form(1);
  one_form.gen[0] = polynomial(variable(1));
  known.min_Ix = std::make_shared<const ideal>(one_form);
  known.socle = std::make_shared<const ideal>(one_form);
  known.beta_matrix =
      std::make_shared<const leading_forms>(leading_forms{matrix(2, 1), std::vector<int>{6}});
  set.X.restore(known);
  EXPECT_EQ(set.X.min_Ix().gen, one_form.gen);
  EXPECT_EQ(set.X.socle().gen, one_form.gen);
  EXPECT_EQ(set.X.beta_matrix().basis, std::vector<int>{6});
}

// What there is after one of them has been asked for, and what has been told.
struct asked {
  const char* name;
  void (*ask)(scheme& X);
  std::string made;
  std::string err;
  int ends;
};

std::string names_of_known(const results& known) {
  std::string names;
  const auto add = [&](const char* name, bool is_there) {
    if (is_there) names += std::string(name) + " ";
  };
  add("bu_mo", known.bu_mo != nullptr);
  add("sep", known.sep != nullptr);
  add("beta_matrix", known.beta_matrix != nullptr);
  add("Can_Lf", known.Can_Lf != nullptr);
  add("min_Ix", known.min_Ix != nullptr);
  add("socle", known.socle != nullptr);
  add("omega", known.omega != nullptr);
  add("linid", known.strands.linid);
  add("linom", known.strands.linom);
  return names;
}

TEST(Scheme, AsksForWhatIsNeededInTheRightOrderAndForNothingElse) {
  const ring_in_force ring(101, 2);
  const std::vector<asked> cases = {
      {"bu_mo", [](scheme& X) { X.bu_mo(); }, "bu_mo ", walk_told, 1},
      {"sep", [](scheme& X) { X.sep(); }, "bu_mo sep ", walk_told + separators_told, 2},
      {"beta_matrix", [](scheme& X) { X.beta_matrix(); }, "bu_mo sep beta_matrix ",
       walk_told + separators_told + beta_matrix_told, 2},
      {"Can_Lf", [](scheme& X) { X.Can_Lf(); }, "bu_mo Can_Lf ", walk_told, 1},
      {"min_Ix", [](scheme& X) { X.min_Ix(); }, "bu_mo Can_Lf min_Ix ", walk_told, 1},
      {"socle", [](scheme& X) { X.socle(); }, "bu_mo Can_Lf socle ", walk_told, 1},
      {"is_CB", [](scheme& X) { X.is_CB(); }, "bu_mo sep ", walk_told + separators_told, 2},
      {"is_ar_Go", [](scheme& X) { X.is_ar_Go(); }, "bu_mo Can_Lf socle ", walk_told, 1},
      {"dependent_separators", [](scheme& X) { X.dependent_separators(0); },
       "bu_mo sep beta_matrix ", walk_told + separators_told + beta_matrix_told, 2},
  };
  for (const asked& it : cases) {
    SCOPED_TRACE(it.name);
    told_set set(triangle);
    it.ask(set.X);
    EXPECT_EQ(names_of_known(set.X.known()), it.made);
    EXPECT_EQ(set.reporter.err, it.err);
    EXPECT_EQ(set.reporter.out, it.ends == 1 ? line : line + line);
  }
}

TEST(Scheme, MakesThePresentationAndTheStrandsFromWhatTheyNeed) {
  const ring_in_force ring(101, 2);
  const auto known_after = [](void (*ask)(scheme&)) {
    scheme X = make_set(triangle);
    ask(X);
    return names_of_known(X.known());
  };
  EXPECT_EQ(known_after([](scheme& X) { X.omega(); }), "bu_mo omega ");
  EXPECT_EQ(known_after([](scheme& X) { X.linid(); }), "bu_mo Can_Lf min_Ix linid ");
  EXPECT_EQ(known_after([](scheme& X) { X.linom(); }), "bu_mo Can_Lf omega linom ");
}

TEST(Scheme, TellsOfEachStepOnceInAnyOrderOfQuestions) {
  const ring_in_force ring(101, 2);
  told_set set(triangle);
  set.X.socle();
  set.X.beta_matrix();
  set.X.min_Ix();
  set.X.dependent_separators(0);
  set.X.is_CB();
  EXPECT_EQ(set.reporter.err, walk_told + separators_told + beta_matrix_told);
  EXPECT_EQ(set.reporter.out, line + line);
}

TEST(Scheme, TakesNoticeOfTheSeparatorsOnceWhateverIsKnownOfTheSet) {
  const ring_in_force ring(101, 2);
  for (const auto& [points, is_CB] :
       {std::pair(std::vector<coordinates>{{0, 0}, {1, 0}, {2, 0}, {0, 1}}, false),
        std::pair(std::vector<coordinates>{{0, 0}, {1, 0}, {0, 1}, {1, 1}}, true)}) {
    told_set set(points);
    set.X.is_ar_Go();
    EXPECT_EQ(set.X.known().is_CB, is_CB);
    EXPECT_EQ(set.X.known().sep, nullptr);
    set.reporter.forget();
    for (int times = 0; times < 3; ++times) {
      set.X.sep();
      EXPECT_NE(set.X.known().sep, nullptr);
      EXPECT_EQ(set.reporter.out, line);
    }
  }
}

TEST(Scheme, KeepsNothingOfASearchForDependentSeparators) {
  const ring_in_force ring(101, 2);
  for (const std::vector<coordinates>& points :
       {triangle, std::vector<coordinates>{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {0, 2}}}) {
    told_set set(points);
    set.X.beta_matrix();
    const std::string before = contents(set.X.known());
    set.reporter.forget();
    const auto first = set.X.dependent_separators(2);
    const std::string told_first = set.reporter.out;
    EXPECT_NE(told_first, "");
    set.reporter.forget();
    EXPECT_EQ(set.X.dependent_separators(2), first);
    EXPECT_EQ(set.reporter.out, told_first);
    EXPECT_EQ(contents(set.X.known()), before);
  }
}

// For a set without points there is no presentation to keep.
TEST(Scheme, MakesThePresentationOfNoPointsEachTimeAnew) {
  const ring_in_force ring(101, 2);
  told_set set({});
  set.X.bu_mo();
  set.reporter.forget();
  set.X.omega();
  const std::string once = set.reporter.out + set.reporter.err;
  EXPECT_NE(once, "");
  for (int times = 0; times < 2; ++times) {
    set.reporter.forget();
    set.X.omega();
    EXPECT_EQ(set.reporter.out + set.reporter.err, once);
  }
}

TEST(Scheme, LetsTheNumbersOfAStrandCountOrStay) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(71);
  const std::vector<coordinates> points = random_points(8, random);
  const auto ignore_level = [](int, const form_vectors&) {};
  const auto go_on = [](int, const form_vectors&) { return true; };
  scheme counted = make_set(points);
  counted.linid(ignore_level, scheme::numbers::count);
  counted.linom(go_on, scheme::numbers::count);
  EXPECT_TRUE(counted.known().strands.linid && counted.known().strands.linom);
  scheme not_counted = make_set(points);
  not_counted.linid(ignore_level, scheme::numbers::stay);
  not_counted.linom(go_on, scheme::numbers::stay);
  EXPECT_FALSE(not_counted.known().strands.linid || not_counted.known().strands.linom);
  // The numbers are there all the same.
  EXPECT_EQ(not_counted.known().strands.linres, counted.known().strands.linres);
  EXPECT_NE(counted.known().strands.linres, results(3).strands.linres);
  // And what has counted goes on to count.
  counted.linid(ignore_level, scheme::numbers::stay);
  counted.linom(go_on, scheme::numbers::stay);
  EXPECT_TRUE(counted.known().strands.linid && counted.known().strands.linom);
}

TEST(Scheme, FollowsAStrandAnewUnlessItsNumbersCount) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(71);
  told_set set(random_points(8, random));
  const auto told_by = [&](const auto& ask) {
    set.reporter.forget();
    ask(set.X);
    return set.reporter.out + set.reporter.err;
  };
  set.X.min_Ix();
  set.X.omega();
  const auto follow_linid = [](scheme& X) { X.linid(); };
  const auto follow_linom = [](scheme& X) { X.linom(); };
  const auto visit_linid = [](scheme& X) {
    X.linid([](int, const form_vectors&) {}, scheme::numbers::stay);
  };
  const auto visit_linom = [](scheme& X) {
    X.linom([](int, const form_vectors&) { return true; }, scheme::numbers::stay);
  };
  const std::string of_I_X = told_by(visit_linid);
  const std::string of_w_R = told_by(visit_linom);
  EXPECT_NE(of_I_X, "");
  EXPECT_NE(of_w_R, "");
  EXPECT_EQ(told_by(follow_linid), of_I_X);
  EXPECT_EQ(told_by(follow_linom), of_w_R);
  EXPECT_EQ(told_by(follow_linid), "");
  EXPECT_EQ(told_by(follow_linom), "");
  EXPECT_EQ(told_by(visit_linid), of_I_X);
  EXPECT_EQ(told_by(visit_linom), of_w_R);
}

// Levels that have not been come to have no numbers, also where there were some.
TEST(Scheme, KeepsTheNumbersAsFarAsTheLastVisitHasCome) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(71);
  scheme X = make_set(random_points(8, random));
  X.linom();
  const std::vector<int> all = X.known().strands.linres[1];
  X.linom([](int, const form_vectors&) { return false; }, scheme::numbers::stay);
  const std::vector<int> some = X.known().strands.linres[1];
  EXPECT_EQ(some.back(), all.back());
  EXPECT_NE(some, all);
  EXPECT_TRUE(X.known().strands.linom);
}

TEST(SchemeDeathTest, PointsOfAnotherSpaceAbortTheParanoidBuild) {
  if (!paranoid) GTEST_SKIP() << "only the paranoid build looks";
  const ring_in_force ring(101, 3);
  EXPECT_DEATH(scheme(matrix(2, 5), nobody()),
               "broken: a point has a coordinate for each affine variable");
}

}  // namespace
}  // namespace zep::tests
