// SPDX-License-Identifier: GPL-3.0-or-later
// The tables that show linear strands.
#pragma once

#include <iosfwd>
#include <string_view>
#include <utility>
#include <vector>

#include "base/floors.h"

namespace zep::text {

// A table with a column for each step of a resolution. Numbers are followed by blanks up to the
// width of their column and one more; what is wider than its column is not cut.
class strand_table {
 public:
  explicit strand_table(std::vector<int> widths) : widths_(std::move(widths)) {}

  int columns() const { return static_cast<int>(widths_.size()); }
  int width(int k) const;

  // Prints the numbers of the columns, from 1 on, and a rule.
  void head(std::ostream& out) const;
  void rule(std::ostream& out) const;

  // Prints a line of numbers, one for each column.
  void line(std::ostream& out, std::string_view label, const std::vector<int>& numbers) const;

 private:
  std::vector<int> widths_;
};

// The width of a column with this entry, 3 at least.
int column_width(int entry);

// The numbers first, first + step, ..., n of them.
std::vector<int> consecutive(int n, int first, int step);

}  // namespace zep::text
