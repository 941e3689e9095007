// SPDX-License-Identifier: GPL-3.0-or-later
// Which columns `matrix::solve` makes pivots, and which unknowns it leaves free, for a system of
// which only the space that its rows span is known.
//
// The elimination takes a column when it is independent of those taken before, and else the last
// one that has not been tried. Whether a column is independent depends on the space alone.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "linalg/matrix.h"
#include "linalg/row.h"

namespace zep::linalg {

// A space of rows, some of whose columns are chosen, one by one, so that they are independent. Its
// rows are in reduced echelon form all the time, with pivots that the chosen columns are among.
class column_choice {
 public:
  // The space of rows with `cols` elements that these rows span. Row i is 1 at pivots[i], and 0 at
  // the other pivots.
  column_choice(int cols, std::vector<row> rows, std::span<const std::size_t> pivots);

  // Chooses a column if it is independent of those that have been chosen; false if it is not.
  // Requires a column that has not been asked for before.
  bool choose(int column);

  int rank() const { return static_cast<int>(rows_.size()); }

  // Row i, 0 <= i < rank, and its pivot.
  const_row_view operator[](int i) const { return rows_[i]; }
  int pivot(int i) const { return pivots_[i]; }

 private:
  void exchange(std::size_t i, int column);

  std::vector<row> rows_;
  std::vector<int> pivots_;
  // The row whose pivot a column is, or -1.
  std::vector<int> row_of_pivot_;
  // Whether the pivot of a row has been chosen.
  std::vector<bool> chosen_;
};

// The orders of `cols` columns that the eliminations in `matrix::solve` go through. Asks
// choose(column), for one column after the other, whether it is independent of those for which the
// answer was yes. Returns the columns that are left free, in the order in which `solve` leaves them
// at the end. Requires steps <= cols.
template <class Choose>
std::vector<int> free_columns(int cols, int steps, Choose choose) {
  std::vector<int> order = identity_order(cols);
  int chosen = 0;
  for (int untried_end = cols; chosen < std::min(steps, untried_end);) {
    heed_interrupt();
    if (choose(order[chosen])) {
      ++chosen;
    } else {
      std::swap(order[chosen], order[--untried_end]);
    }
  }
  return {order.begin() + chosen, order.end()};
}

}  // namespace zep::linalg
