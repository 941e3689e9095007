// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/separator_table.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"

namespace zep::points {

separator_table::separator_table(int s) : s_(s), free_(identity_order(s)) {
  separators_.reserve(s_);
  pivots_.reserve(s_);
}

std::vector<separator_table::verdict> separator_table::take(std::vector<row> values) {
  std::vector<reduced_row> members;
  members.reserve(pivots_.size());
  for (std::size_t j = 0; j < pivots_.size(); ++j) {
    members.push_back({separators_[j], pivots_[j]});
  }
  std::vector<reduced_row> taken;
  taken.reserve(values.size());
  for (row& t : values) taken.push_back({t});

  reduce(taken, members);
  eliminate(taken);
  reduce(members, joined(taken));

  std::vector<verdict> verdicts(values.size());
  for (std::size_t i = 0; i < taken.size(); ++i) {
    verdicts[i].joined = taken[i].pivot != no_pivot;
    if (verdicts[i].joined) {
      separators_.push_back(std::move(values[i]));
      pivots_.push_back(taken[i].pivot);
    } else {
      heed_interrupt();
      verdicts[i].tail = coefficients(values[i]);
    }
  }
  return verdicts;
}

row separator_table::coefficients(const_row_view reduced) const {
  row over_members;
  over_members.reserve(pivots_.size());
  for (const int p : pivots_) over_members.push_back(reduced[p]);
  return over_members;
}

// Reduces the rows by one another, so that each gets a pivot or vanishes; those with a pivot become
// separators over one another. Halves are reduced by halves, for the sake of long combinations.
void separator_table::eliminate(std::span<reduced_row> rows) {
  if (rows.empty() || free_.empty()) return;
  if (rows.size() == 1) {
    find_pivot(rows.front());
    return;
  }
  const std::span<reduced_row> front = rows.first(rows.size() / 2);
  const std::span<reduced_row> back = rows.subspan(front.size());
  eliminate(front);
  reduce(back, joined(front));
  eliminate(back);
  reduce(joined(front), joined(back));
}

// Makes the first free point at which the row is not 0 its pivot. The coefficient of its monomial,
// which is 1 until then, goes there.
void separator_table::find_pivot(reduced_row& t) {
  const auto pivot =
      std::find_if(free_.begin(), free_.end(), [&](int x) { return t.elements[x] != 0; });
  if (pivot == free_.end()) return;
  t.pivot = *pivot;
  free_.erase(pivot);
  Fp8 c = t.elements[t.pivot];
  c.invert();
  scale(t.elements, c);
  t.elements[t.pivot] = c;
}

std::vector<separator_table::reduced_row> separator_table::joined(
    std::span<const reduced_row> rows) {
  std::vector<reduced_row> with_pivot;
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(with_pivot),
               [](const reduced_row& t) { return t.pivot != no_pivot; });
  return with_pivot;
}

// Subtracts multiples of separators from rows, so that these become 0 at their pivots; the places
// of the pivots hold coefficients from then on.
void separator_table::reduce(std::span<const reduced_row> rows,
                             std::span<const reduced_row> by) const {
  matrix coefficients(static_cast<int>(by.size()), static_cast<int>(rows.size()));
  std::vector<row_view> reduced;
  std::vector<const_row_view> subtracted;
  reduced.reserve(rows.size());
  subtracted.reserve(by.size());
  for (const reduced_row& f : by) subtracted.emplace_back(f.elements);
  for (const reduced_row& t : rows) {
    heed_interrupt();
    const row_view c = coefficients[static_cast<int>(reduced.size())];
    for (std::size_t j = 0; j < by.size(); ++j) {
      Fp8& value = t.elements[by[j].pivot];
      c[j] = -value;
      value = 0;
    }
    reduced.push_back(t.elements);
  }
  add_combinations(reduced, coefficients, subtracted);
}

matrix separator_table::separators() const {
  matrix over_O(static_cast<int>(s_), static_cast<int>(s_));
  for (std::size_t j = 0; j < pivots_.size(); ++j) {
    heed_interrupt();
    const row separator = coefficients(separators_[j]);
    std::copy(separator.begin(), separator.end(), over_O[pivots_[j]].begin());
  }
  return over_O;
}

}  // namespace zep::points
