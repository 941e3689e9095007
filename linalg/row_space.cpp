#include "linalg/row_space.h"

#include <algorithm>
#include <utility>

#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

bool row_space::add(std::vector<Fp8> row) {
  const std::size_t n = row.size();
  for (std::size_t j = 0; j < rows_.size(); ++j) {
    heed_interrupt();
    const std::size_t p = pivots_[j];
    axpy(row.data() + p, rows_[j].data() + p, -row[p], n - p);
  }
  const std::size_t pivot = first_nonzero(row.data(), n);
  if (pivot == n) return false;
  scale(row.data() + pivot, Fp8(1) / row[pivot], n - pivot);
  row[pivot] = 1;
  pivots_.push_back(pivot);
  rows_.push_back(std::move(row));
  return true;
}

matrix row_space::basis() const {
  matrix m(cols_, rank());
  for (int i = 0; i < m.rows(); ++i) {
    const std::vector<Fp8>& row = rows_[i];
    std::copy(row.begin(), row.end(), m[i]);
  }
  return m;
}

}  // namespace zep::linalg
