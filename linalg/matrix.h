// SPDX-License-Identifier: GPL-3.0-or-later
// Dense matrices over the field.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <span>
#include <vector>

#include "base/paranoid.h"
#include "linalg/row.h"

namespace zep::linalg {

// A matrix of `rows` x `cols` elements in one block, row after row without gaps:
//
//     a[0][0] ... a[0][cols-1] a[1][0] ... a[1][cols-1] ... a[rows-1][cols-1]
//
// Eliminations permute rows and columns through index lists; no row is ever moved.
class matrix {
 public:
  // Zero matrix with c columns and r rows (mind the order); negative counts are 0.
  matrix(int c, int r);

  int cols() const { return cols_; }
  int rows() const { return rows_; }

  // Row i, 0 <= i < rows. Valid as long as the matrix lives.
  row_view operator[](int i) { return {a_.data() + offset(i), static_cast<std::size_t>(cols_)}; }
  const_row_view operator[](int i) const {
    return {a_.data() + offset(i), static_cast<std::size_t>(cols_)};
  }

  bool operator==(const matrix&) const = default;

  // Brings the homogeneous system (rows are equations, columns unknowns) into reduced row echelon
  // form in place, by Gauss-Jordan elimination that moves a column without a pivot to the end of
  // the column order. Returns the dimension d of the solution space.
  //
  // c (`cols` indices) and r (`rows` indices) are permutations, initialised by the caller, normally
  // to the identity; they are permuted. For d > 0 and rank = cols - d the rows r[0] .. r[rank-1]
  // hold the identity in the columns c[0] .. c[rank-1], so that the unknown c[k] is minus the sum
  // over l >= rank of entry (r[k], c[l]) times the free unknown c[l].
  // Without a solution but zero the elimination stops at the last pivot and leaves the matrix
  // partly reduced.
  int solve(std::span<int> c, std::span<int> r);

  // The same with a given number of steps in place of the smaller of `cols` and `rows`, for a
  // matrix that stands for one with more rows: missing rows count as zero. Requires steps <= cols.
  int solve(std::span<int> c, std::span<int> r, int steps);

 private:
  std::size_t offset(int i) const {
    ensure("a row is one of the matrix", [&] { return i >= 0 && i < rows_; });
    return static_cast<std::size_t>(i) * static_cast<std::size_t>(cols_);
  }

  int cols_;
  int rows_;
  row a_;
};

// The identity permutation 0 .. n-1.
std::vector<int> identity_order(int n);

// Rank of m.
int rank(matrix m);

// Prints the matrix, every column as wide as its widest entry, entries centred, with an empty
// bracket line between two rows.
std::ostream& operator<<(std::ostream& out, const matrix& m);

}  // namespace zep::linalg
