// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/strands.h"

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

#include "base/output.h"
#include "text/strand_table.h"

namespace zep::text {

namespace {

// Nothing is known of them before the walk over the monomials: then they are 0.
int alpha(const results& known) { return known.bu_mo ? known.bu_mo->H.alpha : 0; }
int sigma(const results& known) { return known.bu_mo ? known.bu_mo->H.sigma : 0; }

std::vector<int> widths_of(const std::vector<int>& numbers) {
  std::vector<int> widths(numbers.size());
  std::transform(numbers.begin(), numbers.end(), widths.begin(), column_width);
  return widths;
}

std::vector<int> reversed(std::vector<int> numbers) {
  std::reverse(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace

void disp_linid(std::ostream& out, const results& known) {
  const std::vector<int>& numbers = known.strands.linres[0];
  const strand_table table(widths_of(numbers));
  table.head(out);
  table.line(out, "deg | ", consecutive(table.columns(), alpha(known), -1));
  table.line(out, "I_X | ", numbers);
  out << Line;
}

// The entries stand in reverse, but each is padded to the width of the column that has its index.
void disp_linom(std::ostream& out, const results& known) {
  const std::vector<int> numbers = reversed(known.strands.linres[1]);
  const std::vector<int> widths = widths_of(numbers);
  const strand_table table(widths);
  table.head(out);
  table.line(out, "deg | ", consecutive(table.columns(), -sigma(known), -1));
  strand_table(reversed(widths)).line(out, "w_R | ", numbers);
  out << Line;
}

void disp_linres(std::ostream& out, const results& known) {
  const auto& [of_I_X, of_w_R] = known.strands.linres;
  const int n = static_cast<int>(of_I_X.size());
  std::vector<int> widths(n);
  std::transform(of_I_X.begin(), of_I_X.end(), of_w_R.begin(), widths.begin(),
                 [](int a, int b) { return std::max(column_width(a), column_width(b)); });
  const strand_table table(std::move(widths));
  table.head(out);
  table.line(out, "deg | ", consecutive(n, alpha(known), -1));
  table.line(out, "I_X | ", of_I_X);
  table.rule(out);
  table.line(out, "w_R | ", of_w_R);
  table.line(out, "deg | ", consecutive(n, -sigma(known) - n + 1, 1));
  out << Line;
}

}  // namespace zep::text
