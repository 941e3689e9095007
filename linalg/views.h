// SPDX-License-Identifier: GPL-3.0-or-later
// Views of all rows of a list or a matrix, as products of matrices take them.
#pragma once

#include <cstddef>
#include <vector>

#include "linalg/matrix.h"
#include "linalg/row.h"

namespace zep::linalg {

// One view for each row, in their order; valid as long as the rows stay where they are.
inline std::vector<row_view> views_of(std::vector<row>& rows) { return {rows.begin(), rows.end()}; }
inline std::vector<const_row_view> const_views_of(const std::vector<row>& rows) {
  return {rows.begin(), rows.end()};
}

inline std::vector<row_view> views_of(matrix& m) {
  std::vector<row_view> rows;
  rows.reserve(static_cast<std::size_t>(m.rows()));
  for (int i = 0; i < m.rows(); ++i) rows.push_back(m[i]);
  return rows;
}

inline std::vector<const_row_view> const_views_of(const matrix& m) {
  std::vector<const_row_view> rows;
  rows.reserve(static_cast<std::size_t>(m.rows()));
  for (int i = 0; i < m.rows(); ++i) rows.push_back(m[i]);
  return rows;
}

}  // namespace zep::linalg
