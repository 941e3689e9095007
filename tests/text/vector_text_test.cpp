// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/vector_text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// c * (first variable) + the others of the first n, which is 4n - 3 columns wide for c = 1.
polynomial sum_of_variables(int n, int c = 1) {
  std::vector<monom> terms;
  std::vector<Fp8> coefs(n, Fp8(1));
  for (int v = 0; v < n; ++v) terms.push_back(variable(v));
  coefs.front() = c;
  return {std::move(terms), std::move(coefs)};
}

std::string on_one_line(const polynomial& f) {
  std::ostringstream text;
  show(text, f, -200);
  return text.str();
}

std::string vector_shown(const std::vector<polynomial>& components) {
  std::ostringstream out;
  show_vector(out, static_cast<int>(components.size()),
              [&](int i) -> const polynomial& { return components[i]; });
  return out.str();
}

TEST(VectorText, BeginsTheFirstComponentInTheThirdColumn) {
  const ring_in_force ring(101, 26);
  // 77 columns: the last term would end where no term may.
  EXPECT_EQ(vector_shown({sum_of_variables(20)}),
            "[ " + on_one_line(sum_of_variables(19)) + "\n + " + default_names[19] + " ]\n");
  // 76 columns fit.
  EXPECT_EQ(vector_shown({sum_of_variables(19, -2)}),
            "[ " + on_one_line(sum_of_variables(19, -2)) + " ]\n");
}

TEST(VectorText, BeginsTheOtherComponentsInTheFirstColumn) {
  const ring_in_force ring(101, 26);
  // 79 columns do not fit, 78 do.
  EXPECT_EQ(
      vector_shown({polynomial(0), sum_of_variables(20, -1)}),
      "[  0;\n" + on_one_line(sum_of_variables(19, -1)) + "\n + " + default_names[19] + " ]\n");
  EXPECT_EQ(vector_shown({sum_of_variables(19), sum_of_variables(20, 2)}),
            "[ " + on_one_line(sum_of_variables(19)) + ";\n" +
                on_one_line(sum_of_variables(20, 2)) + " ]\n");
}

TEST(VectorText, ClosesItsBracketOnTheLastLine) {
  const ring_in_force ring(101, 3);
  const polynomial f(variable(0));
  EXPECT_EQ(vector_shown({}), "[  ]\n");
  EXPECT_EQ(vector_shown({f}), "[ X ]\n");
  EXPECT_EQ(vector_shown({f, polynomial(0), f}), "[ X;\n 0;\nX ]\n");
}

// However the components before it have ended.
TEST(VectorText, BeginsEveryComponentAsIfItWereAlone) {
  const ring_in_force ring(101, 26);
  const polynomial broken = sum_of_variables(24);
  std::ostringstream alone;
  show(alone, broken, 0);
  EXPECT_EQ(vector_shown({polynomial(1), broken, broken}),
            "[ 1;\n" + alone.str() + ";\n" + alone.str() + " ]\n");
}

TEST(VectorText, HasALineForEachComponentInItsFileForm) {
  const ring_in_force ring(101, 26);
  const std::vector<polynomial> components = {sum_of_variables(2, 3), polynomial(0),
                                              sum_of_variables(26)};
  std::ostringstream out;
  put_vector(out, 3, [&](int i) -> const polynomial& { return components[i]; });
  std::string expected;
  for (const polynomial& f : components) {
    std::ostringstream line;
    f.put(line);
    expected += line.str() + "\n";
  }
  EXPECT_EQ(out.str(), expected);
  EXPECT_TRUE(out.str().starts_with("3X+Y\n0\nX+Y+Z+"));
  std::ostringstream nothing;
  put_vector(nothing, 0, [&](int i) -> const polynomial& { return components[i]; });
  EXPECT_EQ(nothing.str(), "");
}

}  // namespace
}  // namespace zep::tests
