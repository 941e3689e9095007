// SPDX-License-Identifier: GPL-3.0-or-later
// The space that rows span.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "linalg/matrix.h"

namespace zep::linalg {

// Independent rows in echelon form: row j is 1 at its pivot, its first non-zero element, and 0 at
// the pivots of the rows before. Takes any number of rows, but keeps no more than their rank. The
// more at once the better: blocks of rows are reduced as products of matrices.
//
// A row may have a tail behind the elements that span the space: pivots are not sought there, but
// whatever is done to the row is done to its tail. (With the rows of the identity as tails, the
// tail of a row tells how it came of the rows that were taken.)
class row_space {
 public:
  // The zero space of rows with `cols` elements, and with a tail of so many more.
  explicit row_space(int cols, int tail = 0) : cols_(cols), length_(cols + tail) {}

  // Takes rows, one after the other; tells for each if it is independent of those before.
  std::vector<bool> add_rows(std::vector<row> added);

  // Takes one row more; true if it is independent of those before.
  bool add(row added);

  // Subtracts the one combination of the rows that are kept from each of the given rows, tails
  // included, that makes it 0 at all pivots.
  void reduce(std::span<const row_view> rows) const;

  int rank() const { return static_cast<int>(rows_.size()); }

  // Row j that is kept, 0 <= j < rank, with its tail; and what stood at its pivot before it was
  // made 1.
  const_row_view operator[](int j) const { return rows_[j]; }
  Fp8 lead(int j) const { return leads_[j]; }

  // The pivots of the rows that are kept, in their order.
  const std::vector<std::size_t>& pivots() const { return pivots_; }

  // The rows that are kept, without tails, as a matrix of `rank` rows.
  matrix basis() const;

  // The rows of the reduced echelon form, tails included, in the order of `pivots`: each is 1 at
  // its own pivot and 0 at the others.
  std::vector<row> reduced() const;

 private:
  // Rows that are subtracted together: `size` of them from `first` on, which are 0 outside of the
  // elements from `begin` up to `end`. An unknown combination of them, whose elements at their
  // pivots are known, has these times `to_multiples` as coefficients.
  struct group {
    std::size_t first = 0;
    std::size_t size = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
    matrix to_multiples;
  };

  std::size_t ungrouped() const;
  group grouped(std::size_t first, std::size_t size) const;
  void close_group(std::span<const row_view> still_to_take);
  void reduce(std::span<const row_view> rows, const group& by) const;
  void reduce_by_ungrouped(row_view rest) const;
  bool keep(row rest);

  std::size_t cols_;
  std::size_t length_;
  std::vector<row> rows_;
  std::vector<std::size_t> pivots_;
  std::vector<Fp8> leads_;
  // Ascending; rows behind the last group stand alone.
  std::vector<group> groups_;
};

}  // namespace zep::linalg
