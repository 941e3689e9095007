// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/row_space.h"

#include <algorithm>
#include <utility>

#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

bool row_space::add(row added) {
  const row_view rest(added);
  for (std::size_t j = 0; j < rows_.size(); ++j) {
    heed_interrupt();
    const std::size_t p = pivots_[j];
    axpy(rest.subspan(p), const_row_view(rows_[j]).subspan(p), -added[p]);
  }
  const std::size_t pivot = first_nonzero(rest);
  if (pivot == added.size()) return false;
  scale(rest.subspan(pivot), Fp8(1) / added[pivot]);
  added[pivot] = 1;
  pivots_.push_back(pivot);
  rows_.push_back(std::move(added));
  return true;
}

matrix row_space::basis() const {
  matrix m(cols_, rank());
  for (int i = 0; i < m.rows(); ++i) {
    std::copy(rows_[i].begin(), rows_[i].end(), m[i].begin());
  }
  return m;
}

}  // namespace zep::linalg
