// SPDX-License-Identifier: GPL-3.0-or-later
// The space that rows span, row by row.
#pragma once

#include <cstddef>
#include <vector>

#include "linalg/matrix.h"

namespace zep::linalg {

// Independent rows in echelon form: row j is 1 at its pivot, and 0 at the pivots of the rows
// before. Takes any number of rows, but keeps no more than their rank.
class row_space {
 public:
  // The zero space of rows with `cols` elements.
  explicit row_space(int cols) : cols_(cols) {}

  // Takes one row more; true if it is independent of those before.
  bool add(row added);

  int rank() const { return static_cast<int>(rows_.size()); }

  // The pivots of the rows that are kept, in their order.
  const std::vector<std::size_t>& pivots() const { return pivots_; }

  // The rows that are kept, as a matrix of `rank` rows.
  matrix basis() const;

 private:
  int cols_;
  std::vector<row> rows_;
  std::vector<std::size_t> pivots_;
};

}  // namespace zep::linalg
