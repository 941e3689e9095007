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
  counter = -200;
  text << f;
  return text.str();
}

std::string vector_shown(const std::vector<polynomial>& components) {
  std::ostringstream out;
  counter = 40;
  show_vector(out, static_cast<int>(components.size()),
              [&](int i) -> const polynomial& { return components[i]; });
  return out.str();
}

TEST(VectorText, BeginsTheFirstComponentInTheThirdColumn) {
  const ring_in_force ring(101, 26);
  // 77 columns: the last term would end where no term may.
  EXPECT_EQ(vector_shown({sum_of_variables(20)}),
            "[ " + on_one_line(sum_of_variables(19)) + "\n + " + varstring[19] + " ]\n");
  // 76 columns fit.
  EXPECT_EQ(vector_shown({sum_of_variables(19, -2)}),
            "[ " + on_one_line(sum_of_variables(19, -2)) + " ]\n");
}

TEST(VectorText, BeginsTheOtherComponentsInTheFirstColumn) {
  const ring_in_force ring(101, 26);
  // 79 columns do not fit, 78 do.
  EXPECT_EQ(vector_shown({polynomial(0), sum_of_variables(20, -1)}),
            "[  0;\n" + on_one_line(sum_of_variables(19, -1)) + "\n + " + varstring[19] + " ]\n");
  EXPECT_EQ(vector_shown({sum_of_variables(19), sum_of_variables(20, 2)}),
            "[ " + on_one_line(sum_of_variables(19)) + ";\n" +
                on_one_line(sum_of_variables(20, 2)) + " ]\n");
}

TEST(VectorText, LeavesTheColumnAtTheStartOfALine) {
  const ring_in_force ring(101, 26);
  vector_shown({sum_of_variables(3)});
  EXPECT_EQ(counter, 0);
}

}  // namespace
}  // namespace zep::tests
