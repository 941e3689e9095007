// SPDX-License-Identifier: GPL-3.0-or-later
// The socle by one large system for each degree.
#pragma once

#include <algorithm>
#include <vector>

#include "arith/list.h"
#include "linalg/matrix.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/ideal.h"
#include "points/ring/order_ideal.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// The products of the first m members of O of degree d with the variables, over the members of
// degree d + 1: a block of rows for each variable, a column for each member, the greatest first.
inline matrix plain_annihilation(const points::canonical_forms& R,
                                 const std::vector<int>& variables, int d, int m) {
  const int height = R.dimension(d + 1);
  matrix system(m, static_cast<int>(variables.size()) * height);
  for (int c = 0; c < m; ++c) {
    int block = 0;
    for (const int v : variables) {
      const auto [in_O, position] = R.times(R.begin(d) + m - 1 - c, v);
      if (in_O) {
        system[block + position - R.begin(d + 1)][c] = 1;
      } else {
        for (int e = 0; e < height; ++e) system[block + e][c] = R.form(position)[e];
      }
      block += height;
    }
  }
  return system;
}

inline std::vector<int> variables_in_O(const points::order_ideal& X) {
  std::vector<int> variables;
  for (const monom& t : X.O) {
    for (int v = 0; v < dim; ++v) {
      if (t == variable(v)) variables.push_back(v);
    }
  }
  return variables;
}

// The number of members of degree d, in the order of O, up to the last one that no variable takes
// to a member.
inline int plain_candidates(const points::canonical_forms& R, const std::vector<int>& variables,
                            int d) {
  int m = R.dimension(d);
  const auto has_product = [&](int i) {
    return std::any_of(variables.begin(), variables.end(),
                       [&](int v) { return R.times(i, v).in_O; });
  };
  while (m > 0 && has_product(R.begin(d) + m - 1)) --m;
  return m;
}

// The generators in ascending order.
inline std::vector<polynomial> plain_socle(const points::order_ideal& X,
                                           const points::canonical_forms& R) {
  list<polynomial> found;
  const int top = R.top_degree();
  for (int i = R.begin(top + 1) - 1; i >= R.begin(top); --i) found.add(polynomial(X.O[i]));
  for (int d = top - 1; d >= 1; --d) {
    const std::vector<int> variables = variables_in_O(X);
    const int m = plain_candidates(R, variables, d);
    matrix system = plain_annihilation(R, variables, d, m);
    std::vector<int> columns = identity_order(m);
    std::vector<int> rows = identity_order(system.rows());
    const int last = R.begin(d) + m - 1;
    const int free_ones = m > 0 ? system.solve(columns, rows) : 0;
    for (int k = 0; k < free_ones; ++k) {
      const int free_column = columns[m - k - 1];
      row element(X.s());
      element[last - free_column] = 1;
      for (int q = 0; q < m - free_ones; ++q) {
        element[last - columns[q]] = -system[rows[q]][free_column];
      }
      found.add(points::combination(element, X.O));
    }
  }
  std::vector<polynomial> ascending(static_cast<std::size_t>(found.no_of_items()));
  for (polynomial& f : ascending) found.min_del(f);
  return ascending;
}

}  // namespace zep::tests
