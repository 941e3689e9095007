// SPDX-License-Identifier: GPL-3.0-or-later
// Rows that are mostly zero, and their elimination.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "linalg/row.h"

namespace zep::linalg {

// A row that is kept to be subtracted from others, without its zeros where these are many: either
// its non-zero elements with their places, or all elements between the first and the last of them.
class compact_row {
 public:
  // The zero row.
  compact_row() = default;

  // The row with these elements, none of them zero, at these ascending places.
  compact_row(std::vector<std::uint32_t> places, row values);

  // What a row in full length holds.
  explicit compact_row(const_row_view all);

  bool is_zero() const { return values_.empty(); }

  // Place of the first non-zero element. Requires a row that is not zero.
  std::size_t pivot() const { return places_.empty() ? first_ : places_.front(); }

  // Sets d to d - c * row; d is a row in full length.
  void subtract_from(row_view d, Fp8 c) const;

  // Calls use(place, element) for the non-zero elements, places ascending.
  template <class Use>
  void for_each(Use use) const {
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (values_[i] != 0) use(places_.empty() ? first_ + i : places_[i], values_[i]);
    }
  }

 private:
  // Empty when the row is kept in one piece that starts at first_.
  std::vector<std::uint32_t> places_;
  std::size_t first_ = 0;
  row values_;
};

// Brings rows of the given width to triangular form, one by one: from each, multiples of rows
// before it are subtracted until its first non-zero element stands at the pivot of none of them;
// then it is divided by that element. (In a composite characteristic it becomes zero when that is
// no unit.) No row is used before it is finished or changed afterwards.
void triangulate(std::vector<compact_row>& rows, std::size_t width);

}  // namespace zep::linalg
