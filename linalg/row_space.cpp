// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/row_space.h"

#include <algorithm>
#include <utility>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"
#include "linalg/views.h"

namespace zep::linalg {

namespace {

// So many rows are reduced by one another one by one before they make a group, and so many, at
// most, make one: as many summands as a tile takes.
constexpr std::size_t smallest_group = 32;
constexpr std::size_t largest_group = 256;

// The position behind the last non-zero element.
std::size_t extent(const_row_view s) {
  std::size_t end = s.size();
  while (end > 0 && s[end - 1] == 0) --end;
  return end;
}

template <class View, class Rows>
std::vector<View> stretches(const Rows& rows, std::size_t begin, std::size_t end) {
  std::vector<View> result;
  result.reserve(rows.size());
  for (const auto& r : rows) result.push_back(View(r).subspan(begin, end - begin));
  return result;
}

// The inverse of a triangular matrix with ones in the diagonal and zeros below it.
matrix inverse_of_unitriangular(const matrix& t) {
  matrix inverse(t.cols(), t.rows());
  for (int i = t.rows() - 1; i >= 0; --i) {
    heed_interrupt();
    inverse[i][i] = 1;
    for (int k = i + 1; k < t.rows(); ++k) axpy(inverse[i], inverse[k], -t[i][k]);
  }
  return inverse;
}

}  // namespace

std::vector<bool> row_space::add_rows(std::vector<row> added) {
  const std::vector<row_view> views = views_of(added);
  reduce(views);
  std::vector<bool> independent(added.size());
  for (std::size_t i = 0; i < added.size(); ++i) {
    heed_interrupt();
    reduce_by_ungrouped(views[i]);
    independent[i] = keep(std::move(added[i]));
    if (ungrouped() == smallest_group) close_group(std::span(views).subspan(i + 1));
  }
  return independent;
}

bool row_space::add(row added) {
  std::vector<row> one;
  one.push_back(std::move(added));
  return add_rows(std::move(one)).front();
}

void row_space::reduce(std::span<const row_view> rows) const {
  for (const group& by : groups_) reduce(rows, by);
  for (const row_view rest : rows) reduce_by_ungrouped(rest);
}

// Makes a pivot of the first non-zero element, if there is one.
bool row_space::keep(row rest) {
  ensure("a row has the length of the space", [&] { return rest.size() == length_; });
  const std::size_t pivot = first_nonzero(const_row_view(rest).first(cols_));
  if (pivot == cols_) return false;
  leads_.push_back(rest[pivot]);
  scale(row_view(rest).subspan(pivot), Fp8(1) / rest[pivot]);
  rest[pivot] = 1;
  pivots_.push_back(pivot);
  rows_.push_back(std::move(rest));
  return true;
}

std::size_t row_space::ungrouped() const {
  return rows_.size() - (groups_.empty() ? 0 : groups_.back().first + groups_.back().size);
}

void row_space::reduce_by_ungrouped(row_view rest) const {
  for (std::size_t j = rows_.size() - ungrouped(); j < rows_.size(); ++j) {
    const std::size_t p = pivots_[j];
    axpy(rest.subspan(p), const_row_view(rows_[j]).subspan(p), -rest[p]);
  }
}

row_space::group row_space::grouped(std::size_t first, std::size_t size) const {
  const int n = static_cast<int>(size);
  matrix at_pivots(n, n);
  std::size_t begin = length_;
  std::size_t end = 0;
  for (std::size_t i = 0; i < size; ++i) {
    heed_interrupt();
    const row& r = rows_[first + i];
    begin = std::min(begin, pivots_[first + i]);
    end = std::max(end, extent(r));
    for (std::size_t k = i; k < size; ++k) {
      at_pivots[static_cast<int>(i)][k] = r[pivots_[first + k]];
    }
  }
  return {first, size, begin, end, inverse_of_unitriangular(at_pivots)};
}

// Groups of one size become one, like digits that are carried, until they are large enough.
void row_space::close_group(std::span<const row_view> still_to_take) {
  const std::size_t size = ungrouped();
  groups_.push_back(grouped(rows_.size() - size, size));
  reduce(still_to_take, groups_.back());
  while (groups_.size() > 1) {
    const group& last = groups_.back();
    const group& before = groups_[groups_.size() - 2];
    if (before.size > last.size || before.size + last.size > largest_group) return;
    group both = grouped(before.first, before.size + last.size);
    groups_.pop_back();
    groups_.back() = std::move(both);
  }
}

// Many rows are 0 at most pivots.
void row_space::reduce(std::span<const row_view> rows, const group& by) const {
  const std::span pivots = std::span(pivots_).subspan(by.first, by.size);
  std::vector<row_view> hit;
  for (const row_view r : rows) {
    if (std::any_of(pivots.begin(), pivots.end(), [&](std::size_t p) { return r[p] != 0; })) {
      hit.push_back(r);
    }
  }
  if (hit.empty()) return;
  matrix at_pivots(static_cast<int>(by.size), static_cast<int>(hit.size()));
  for (std::size_t i = 0; i < hit.size(); ++i) {
    const row_view values = at_pivots[static_cast<int>(i)];
    for (std::size_t k = 0; k < by.size; ++k) values[k] = -hit[i][pivots[k]];
  }
  matrix multiples(at_pivots.cols(), at_pivots.rows());
  add_combinations(views_of(multiples), at_pivots, const_views_of(by.to_multiples));
  const auto own = std::span(rows_).subspan(by.first, by.size);
  add_combinations(stretches<row_view>(hit, by.begin, by.end), multiples,
                   stretches<const_row_view>(own, by.begin, by.end));
  // In a composite characteristic something may be left, and no pivot may come twice.
  for (const row_view rest : hit) {
    for (const std::size_t p : pivots) rest[p] = 0;
  }
}

matrix row_space::basis() const {
  matrix m(static_cast<int>(cols_), rank());
  for (int i = 0; i < m.rows(); ++i) std::copy_n(rows_[i].begin(), cols_, m[i].begin());
  return m;
}

// From the last group on: its rows are freed of one another, and of those behind it, which are free
// of one another already.
std::vector<row> row_space::reduced() const {
  std::vector<group> groups = groups_;
  if (ungrouped() > 0) groups.push_back(grouped(rows_.size() - ungrouped(), ungrouped()));
  std::vector<row> result(rows_.size(), row(length_));
  std::vector<row_view> views = views_of(result);
  for (std::size_t g = groups.size(); g-- > 0;) {
    const auto& [first, size, begin, end, to_multiples] = groups[g];
    const std::span<const row_view> own = std::span(views).subspan(first, size);
    const std::span<const row> kept = std::span(rows_).subspan(first, size);
    add_combinations(own, to_multiples, stretches<const_row_view>(kept, 0, length_));
    const std::span<const row_view> behind = std::span(views).subspan(first + size);
    if (behind.empty()) continue;
    matrix at_pivots(static_cast<int>(behind.size()), static_cast<int>(size));
    for (std::size_t i = 0; i < size; ++i) {
      const row_view values = at_pivots[static_cast<int>(i)];
      for (std::size_t k = 0; k < behind.size(); ++k) {
        values[k] = -own[i][pivots_[first + size + k]];
      }
    }
    add_combinations(own, at_pivots, stretches<const_row_view>(behind, 0, length_));
  }
  return result;
}

}  // namespace zep::linalg
