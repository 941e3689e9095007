// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/compact_row.h"

#include <algorithm>
#include <utility>

#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

namespace {

// A row in one piece is worked on several elements at a time, so that it may hold some zeros.
constexpr std::size_t elements_in_the_time_of_one = 16;

}  // namespace

compact_row::compact_row(std::vector<std::uint32_t> places, row values)
    : places_(std::move(places)), values_(std::move(values)) {
  if (values_.empty()) return;
  const std::size_t extent = places_.back() - places_.front() + 1;
  if (extent > elements_in_the_time_of_one * values_.size()) return;
  row piece(extent);
  for (std::size_t i = 0; i < values_.size(); ++i) piece[places_[i] - places_.front()] = values_[i];
  first_ = places_.front();
  places_ = {};
  values_ = std::move(piece);
}

compact_row::compact_row(const_row_view all) {
  std::vector<std::uint32_t> places;
  row values;
  for (std::size_t i = first_nonzero(all); i < all.size(); ++i) {
    if (all[i] == 0) continue;
    places.push_back(static_cast<std::uint32_t>(i));
    values.push_back(all[i]);
  }
  *this = compact_row(std::move(places), std::move(values));
}

void compact_row::subtract_from(row_view d, Fp8 c) const {
  if (places_.empty()) {
    axpy(d.subspan(first_, values_.size()), values_, -c);
    return;
  }
  // Looked up in one row of the table, which stays near at hand; the whole tables would not.
  const std::uint8_t* const multiple = Fp8::mul[(-c).value()];
  const int p = Fp8::prime;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    const int sum = d[places_[i]].value() + multiple[values_[i].value()];
    d[places_[i]] = Fp8(sum < p ? sum : sum - p);
  }
}

void triangulate(std::vector<compact_row>& rows, std::size_t width) {
  std::vector<int> row_with_pivot(width, -1);
  row all(width);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    heed_interrupt();
    if (rows[i].is_zero()) continue;
    std::fill(all.begin(), all.end(), Fp8(0));
    rows[i].subtract_from(all, -Fp8(1));
    std::size_t pivot = rows[i].pivot();
    while (pivot < width && row_with_pivot[pivot] >= 0) {
      heed_interrupt();
      rows[row_with_pivot[pivot]].subtract_from(all, all[pivot]);
      ++pivot;
      pivot += first_nonzero(const_row_view(all).subspan(pivot));
    }
    if (pivot < width) scale(row_view(all).subspan(pivot), Fp8(1) / all[pivot]);
    rows[i] = compact_row(all);
    if (!rows[i].is_zero()) row_with_pivot[pivot] = static_cast<int>(i);
  }
}

}  // namespace zep::linalg
