// SPDX-License-Identifier: GPL-3.0-or-later
// Commands that have a result computed and print it, and those for uniformity, which choose what to
// compute.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "front/commands/command.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

// The plane with a set A, on which commands are typed.
class plane {
 public:
  explicit plane(const std::string& points) { type("dim 2\nget A " + points + "\n"); }

  transcript type(const std::string& commands) {
    transcript found = type_in(shared_, commands);
    // Without the prompts before and behind.
    found.out = found.out.substr(2, found.out.size() - 4);
    return found;
  }

  std::string quietly(const std::string& command) {
    type("quiet\n");
    std::string text = type(command + "\n").out;
    type("verbose\n");
    return text;
  }

  scheme& A() { return *shared_.var.find("A")->object; }

 private:
  workspace shared_;
};

const std::string triangle = "3 1 0 0 1 1 0 1 0 1";
// Three points on one line and two on another: the separators of the second and third point have
// proportional leading forms.
const std::string two_lines = "5 1 0 0 1 1 0 1 2 0 1 0 1 1 0 2";
// A conic that vanishes at all points but the last separates it, so its leading form is 0.
const std::string one_off_two_lines = "8 1 0 0 1 1 0 1 2 0 1 3 0 1 0 1 1 0 2 1 0 3 1 1 1";
// Sets with delta = 1, the first with the Cayley-Bacharach property.
const std::string one_line = "3 1 0 0 1 1 0 1 2 0";
const std::string one_off_the_line = "4 1 0 0 1 1 0 1 2 0 1 0 1";

// The results that there are, by address.
std::vector<const void*> results_of(const results& known) {
  return {known.bu_mo.get(),  known.sep.get(),   known.beta_matrix.get(), known.Can_Lf.get(),
          known.min_Ix.get(), known.socle.get(), known.omega.get()};
}

// What their computations write comes first: a Line from Buchberger-Moeller, one from the
// separators.
TEST(ComputedResults, ArePrintedBehindWhatTheirComputationsWrite) {
  const auto expect = [](const std::string& before, const std::string& command) {
    SCOPED_TRACE(command);
    plane first(triangle);
    const std::string computed = first.quietly(command + " A");
    const std::string known = first.quietly(command + " A");
    EXPECT_EQ(computed, before + known);
    EXPECT_FALSE(known.starts_with("-"));
  };
  for (const std::string command : {"alpha", "sigma", "delta", "hilbertfn", "deltafn", "orderideal",
                                    "gbasis", "is_gor", "min", "mindegs", "socle", "type"}) {
    expect(line, command);
  }
  for (const std::string command : {"is_cb", "sep", "betamat"}) expect(line + line, command);
}

TEST(ComputedResults, AreComputedOnceWhateverIsPrinted) {
  plane P(triangle);
  const std::string progress =
      "calculating triangular sequence ...\n[3][2][1]\n"
      "calculating biorthogonal sequence ...\n[3][2][1]\n";
  EXPECT_EQ(P.type("sep A\n").err, progress);
  EXPECT_EQ(P.type("sep A\nis_cb A\ngbasis A\nis_gor A\ntype A\nmin A\n").err, "");
}

TEST(ComputedResults, CountTheSeparatorsAsAskedForOnceTheyHaveBeenShown) {
  plane P(triangle);
  P.type("gbasis A\n");
  EXPECT_EQ(P.A().known().sep, nullptr);
  P.type("sep A\n");
  EXPECT_NE(P.A().known().sep, nullptr);
}

TEST(DeltaUniformity, IsDecidedByCayleyBacharachWhenDeltaIsOne) {
  plane with(one_line);
  EXPECT_EQ(with.type("is_duf A\n").out,
            line + line +
                "scheme has Cayley-Bacharach property\n"
                "since delta = 1, scheme has also delta uniform property\nand is even 2-uniform\n" +
                line);
  plane without(one_off_the_line);
  EXPECT_EQ(without.type("is_duf A\n").out, line + line +
                                                "scheme has NOT Cayley-Bacharach property\n"
                                                "hence it cannot have delta uniform property\n" +
                                                line);
}

TEST(DeltaUniformity, CountsDownAndEndsTheLineBeforeTheVerdict) {
  plane P(triangle);
  EXPECT_EQ(P.type("is_duf A\n").out,
            line + line + "[2][1]\nscheme has delta uniform property\n" + line);
  plane Q(two_lines);
  EXPECT_EQ(Q.type("is_duf A\n").out, line + line +
                                          "[4]\nlinear dependence between f2, f3, \ntherefore \n"
                                          "scheme has NOT delta uniform property\n" +
                                          line);
}

TEST(DeltaUniformity, SaysTheSameQuietlyWithoutTheLineEnd) {
  plane P(triangle);
  EXPECT_EQ(P.quietly("is_duf A"), line + line + "scheme has delta uniform property\n" + line);
  plane Q(two_lines);
  EXPECT_EQ(Q.quietly("is_duf A"), line + line +
                                       "\nlinear dependence between f2, f3, \ntherefore "
                                       "scheme has NOT delta uniform property\n" +
                                       line);
}

TEST(DeltaUniformity, NamesTheFirstSeparatorsWithoutACountdownWhenTheyDepend) {
  plane P("5 1 1 0 1 2 0 1 0 0 1 0 1 1 0 2");
  EXPECT_EQ(P.type("is_duf A\n").out, line + line +
                                          "\nlinear dependence between f1, f2, \ntherefore \n"
                                          "scheme has NOT delta uniform property\n" +
                                          line);
}

TEST(NUniformity, IsRefusedForNBelowOneBeforeAnythingIsComputed) {
  plane P(triangle);
  for (const std::string n : {"0", "-1", "-2147483648", "-99999999999"}) {
    EXPECT_EQ(P.type("is_uf A " + n + "\n").out, "n-unifomity only defined for n > 0 !!!\n" + line)
        << n;
  }
  EXPECT_EQ(P.A().known().bu_mo, nullptr);
}

TEST(NUniformity, IsRefusedForNAboveDeltaWithTheOrderIdealAlone) {
  plane P(triangle);
  P.type("bumo A\n");
  const std::vector<const void*> before = results_of(P.A().known());
  for (const std::string n : {"3", "2147483647"}) {
    EXPECT_EQ(P.type("is_uf A " + n + "\n").out,
              "sorry, but checking n-unifomity for n > delta is not supported yet\n" + line);
  }
  EXPECT_EQ(results_of(P.A().known()), before);
}

TEST(NUniformity, ForNEqualToDeltaIsDeltaUniformity) {
  for (const std::string& points : {triangle, two_lines, one_line, one_off_the_line}) {
    plane P(points);
    P.type("bumo A\n");
    const int delta = P.A().known().bu_mo->H.delta;
    plane Q(points);
    Q.type("bumo A\n");
    const transcript by_number = P.type("is_uf A " + std::to_string(delta) + "\n");
    const transcript by_name = Q.type("is_duf A\n");
    EXPECT_EQ(by_number.out, by_name.out);
    EXPECT_EQ(by_number.err, by_name.err);
    EXPECT_EQ(P.A().known().beta_matrix == nullptr, Q.A().known().beta_matrix == nullptr);
  }
}

TEST(NUniformity, OpensItsPositiveVerdictWithALineEnd) {
  plane P(triangle);
  P.type("betamat A\n");
  EXPECT_EQ(P.type("is_uf A 1\n").out, "[3][2][1]\nscheme has 1-uniform property\n" + line);
  EXPECT_EQ(P.quietly("is_uf A 1"), "\nscheme has 1-uniform property\n" + line);
}

TEST(NUniformity, NamesTheSeparatorWithoutALeadingForm) {
  plane P(one_off_two_lines);
  EXPECT_EQ(P.quietly("is_uf A 1"), line + line +
                                        "\nlinear dependence between f8, \ntherefore "
                                        "scheme has NOT 1-uniform property\n" +
                                        line);
}

TEST(Uniformity, HasItsPrerequisitesComputedOnce) {
  plane P(triangle);
  const transcript found = P.type("is_duf A\nis_duf A\nis_uf A 1\n");
  EXPECT_EQ(found.out.substr(0, 2 * line.size()), line + line);
  EXPECT_EQ(found.err,
            "calculating triangular sequence ...\n[3][2][1]\n"
            "calculating biorthogonal sequence ...\n[3][2][1]\n"
            "calculating beta matrix ...\n[2][1]\n");
}

TEST(Uniformity, KeepsNothingButItsPrerequisites) {
  for (const std::string& points : {triangle, two_lines, one_off_two_lines}) {
    for (const std::string command : {"is_duf A\n", "is_uf A 1\n"}) {
      plane P(points);
      P.type("betamat A\n");
      const std::vector<const void*> before = results_of(P.A().known());
      P.type(command);
      EXPECT_EQ(results_of(P.A().known()), before);
      plane Q(points);
      Q.type(command);
      EXPECT_NE(Q.A().known().beta_matrix, nullptr);
      EXPECT_EQ(Q.A().known().Can_Lf, nullptr);
      EXPECT_EQ(Q.A().known().omega, nullptr);
    }
  }
  for (const std::string& points : {one_line, one_off_the_line}) {
    plane P(points);
    P.type("is_duf A\n");
    EXPECT_NE(P.A().known().sep, nullptr);
    EXPECT_EQ(P.A().known().beta_matrix, nullptr);
  }
}

TEST(Uniformity, OfNoPointsDoesNotFail) {
  plane P("0");
  EXPECT_EQ(P.type("is_duf A\n").out, line + line + "\nscheme has delta uniform property\n" + line);
  EXPECT_EQ(P.type("is_uf A 1\n").out,
            "sorry, but checking n-unifomity for n > delta is not supported yet\n" + line);
}

TEST(Uniformity, OfMeaninglessPointsIsAnsweredSomehow) {
  plane P("5 1 1 1 1 2 2 1 1 1 1 0 3 1 0 3");
  EXPECT_NE(P.type("is_duf A\n").out.find("scheme has "), std::string::npos);
}

}  // namespace
}  // namespace zep::tests
