// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of Betti numbers that are written down, and those of points.
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "points/ideal/artinian_forms.h"
#include "points/koszul/betti_numbers.h"
#include "tests/points/point_sets.h"

namespace zep::points {

// For messages of tests.
inline void PrintTo(const betti_table& B, std::ostream* out) {
  *out << "rows " << B.first_row() << " .. " << B.last_row() << "\n";
  for (int r = B.first_row(); r <= B.last_row(); ++r) {
    for (int i = 0; i <= B.n(); ++i) *out << " " << B(i, r);
    *out << "\n";
  }
}

}  // namespace zep::points

namespace zep::tests {

using table_row = std::vector<std::int64_t>;

// The table with these rows, at least one.
inline betti_table table_of(const std::vector<table_row>& rows, int first_row = 0) {
  const int n = static_cast<int>(rows.front().size()) - 1;
  betti_table B(n, first_row, first_row + static_cast<int>(rows.size()) - 1);
  for (int r = first_row; r <= B.last_row(); ++r) {
    for (int i = 0; i <= n; ++i) B.set(i, r, rows[r - first_row][i]);
  }
  return B;
}

inline table_row row_of(const betti_table& B, int r) {
  table_row row;
  for (int i = 0; i <= B.n(); ++i) row.push_back(B(i, r));
  return row;
}

inline betti_table betti_of(const matrix& P) {
  const points::order_ideal X = bu_mo(P, nobody());
  return betti_numbers(X, Can_Lf(X));
}

inline betti_table betti_of(const std::vector<coordinates>& points) {
  return betti_of(rows_of(points));
}

// The table of n forms of these degrees without a common zero: their Koszul complex.
inline betti_table table_of_complete_intersection(const std::vector<int>& degrees) {
  const int n = static_cast<int>(degrees.size());
  int socle_degree = 0;
  for (const int d : degrees) socle_degree += d - 1;
  betti_table B(n, 0, socle_degree);
  for (unsigned set = 0; set < 1U << n; ++set) {
    int i = 0;
    int r = 0;
    for (int v = 0; v < n; ++v) {
      if ((set >> v & 1U) == 0) continue;
      ++i;
      r += degrees[v] - 1;
    }
    B.set(i, r, B(i, r) + 1);
  }
  return B;
}

}  // namespace zep::tests
