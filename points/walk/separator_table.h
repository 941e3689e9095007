// SPDX-License-Identifier: GPL-3.0-or-later
// The separators of a growing set of points, while the order ideal grows.
//
// A monomial is independent of others if its values at the points are. Independent monomials
// o_0 .. o_(r-1) are independent at r of the points already, the pivots; so for each pivot there is
// one combination of these monomials that is 1 there and 0 at the other pivots, its separator.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "linalg/matrix.h"

namespace zep::points {

// Takes monomials by their values at s points, keeps the independent ones, the members, and the
// separators of their pivots over them. Rows of s elements hold a polynomial whole: at the place of
// pivot k, where the value is known, the coefficient of member k, and elsewhere the value.
//
//                     place of pivot k           place of another point x
//     separator j     coefficient of o_k         f_j(x)
//     t reduced       coefficient of o_k         value of t minus a combination of members
//
// The coefficient 1 of t itself is understood. So reduced rows never grow, and with s members the
// rows are the separators of all points: a Gauss-Jordan elimination of the values in place.
class separator_table {
 public:
  // No members yet.
  explicit separator_table(int s);

  // What became of a monomial.
  struct verdict {
    // It is a member now.
    bool joined = false;
    // Else the coefficients over the members before it of what it lacks to vanish at all points.
    row tail;
  };

  // Takes monomials with these rows of values at the points, one after the other. The more at once
  // the better.
  std::vector<verdict> take(std::vector<row> values);

  // The separators over the members: row i belongs to point i. Zero for a point that is no pivot,
  // and behind the last member.
  matrix separators() const;

 private:
  // A row that is being reduced, or that has been; with a pivot, it is that of a separator.
  struct reduced_row {
    row_view elements;
    int pivot = no_pivot;
  };
  static constexpr int no_pivot = -1;

  static std::vector<reduced_row> joined(std::span<const reduced_row> rows);

  void eliminate(std::span<reduced_row> rows);
  void find_pivot(reduced_row& t);
  void reduce(std::span<const reduced_row> rows, std::span<const reduced_row> by) const;
  row coefficients(const_row_view reduced) const;

  std::size_t s_;
  std::vector<row> separators_;
  std::vector<int> pivots_;
  // The points that are no pivots, ascending.
  std::vector<int> free_;
};

}  // namespace zep::points
