// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/strand_table.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "arith/Fp.h"

namespace zep::text {

namespace {

constexpr int label_width = 6;

}  // namespace

int strand_table::width(int k) const { return widths_[k]; }

void strand_table::head(std::ostream& out) const {
  line(out, "    | ", consecutive(columns(), 1, 1));
  rule(out);
}

void strand_table::rule(std::ostream& out) const {
  int length = label_width;
  for (const int width : widths_) length += width + 1;
  out << std::string(length, '-') << "\n";
}

void strand_table::line(std::ostream& out, std::string_view label,
                        const std::vector<int>& numbers) const {
  out << label;
  for (int k = 0; k < columns(); ++k) {
    const int number = numbers[k];
    out << number << std::string(std::max(width(k) - len(number) + 1, 0), ' ');
  }
  out << "\n";
}

int column_width(int entry) { return std::max(3, len(entry)); }

std::vector<int> consecutive(int n, int first, int step) {
  std::vector<int> numbers(n);
  for (int k = 0; k < n; ++k) numbers[k] = first + k * step;
  return numbers;
}

}  // namespace zep::text
