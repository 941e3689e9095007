// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/column_choice.h"

#include "base/paranoid.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

column_choice::column_choice(int cols, std::vector<row> rows, std::span<const std::size_t> pivots)
    : rows_(std::move(rows)),
      pivots_(pivots.begin(), pivots.end()),
      row_of_pivot_(static_cast<std::size_t>(cols), -1),
      chosen_(rows_.size()) {
  ensure("each row has a pivot", [&] { return pivots_.size() == rows_.size(); });
  for (int i = 0; i < rank(); ++i) row_of_pivot_[pivots_[i]] = i;
}

bool column_choice::choose(int column) {
  if (const int i = row_of_pivot_[column]; i >= 0) {
    chosen_[i] = true;
    return true;
  }
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (chosen_[i] || rows_[i][column] == 0) continue;
    exchange(i, column);
    chosen_[i] = true;
    return true;
  }
  return false;
}

// Makes the column the pivot of row i, in place of the one that it has.
void column_choice::exchange(std::size_t i, int column) {
  row& pivot_row = rows_[i];
  scale(pivot_row, Fp8(1) / pivot_row[column]);
  pivot_row[column] = 1;
  for (std::size_t k = 0; k < rows_.size(); ++k) {
    if (k == i) continue;
    heed_interrupt();
    axpy(rows_[k], pivot_row, -rows_[k][column]);
    rows_[k][column] = 0;
  }
  row_of_pivot_[pivots_[i]] = -1;
  row_of_pivot_[column] = static_cast<int>(i);
  pivots_[i] = column;
}

}  // namespace zep::linalg
