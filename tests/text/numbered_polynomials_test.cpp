// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/numbered_polynomials.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

std::string numbered(std::string_view label, const std::vector<polynomial>& list) {
  std::ostringstream out;
  show_numbered(out, label, static_cast<int>(list.size()), [&](int i) { return list[i]; });
  return out.str();
}

TEST(NumberedPolynomials, StandOnALineEachWithNumbersFromOneOn) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(numbered("soc", {polynomial(variable(0)), polynomial(0), polynomial(7)}),
            "soc1 = X\nsoc2 =  0\nsoc3 = 7\n");
}

TEST(NumberedPolynomials, OfAnEmptyListAreNothing) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(numbered("g", {}), "");
}

// 1 + X + ... + X^n, with long exponents.
polynomial long_polynomial(int n) {
  std::vector<monom> terms;
  for (int e = n; e >= 0; --e) {
    monom t;
    t.set_exp(0, e);
    terms.push_back(t);
  }
  return {terms, std::vector<Fp8>(terms.size(), Fp8(1))};
}

std::string first_line(const std::string& text) { return text.substr(0, text.find('\n')); }

// As if the label had been part of the polynomial: its width counts, that of the number too.
TEST(NumberedPolynomials, AreBrokenAsTheirLabelLeavesRoom) {
  const ring_in_force ring(101, 2);
  const polynomial f = long_polynomial(40);
  for (const std::string label : {"g", "min", "a long label"}) {
    const std::string text = numbered(label, std::vector<polynomial>(100, f));
    std::istringstream lines(text);
    int number = 0;
    for (std::string row; std::getline(lines, row);) {
      if (!row.starts_with(label)) continue;
      const std::string head = label + std::to_string(++number) + " = ";
      std::ostringstream alone;
      show(alone, f, static_cast<int>(head.size()));
      EXPECT_EQ(row, head + first_line(alone.str()));
      EXPECT_LT(row.size(), 80U);
    }
    EXPECT_EQ(number, 100);
  }
}

}  // namespace
}  // namespace zep::tests
