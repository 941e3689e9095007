// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/dependent_subset.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

namespace {

// A choice with fewer rows below it is not worth a check.
constexpr int many_rows = 64;

// Places of a subset, from the lowest on, that keep reduced rows of their own.
constexpr int lower_places = 24;

// Rows reduced by chosen ones, column by column, so that reducing all rows by one more is a row
// operation on each column. Only the first `active` columns count; those of the pivots are gone.
struct reduced_rows {
  matrix columns;
  int active;

  // The first active column that is not zero in row c, or -1.
  int pivot_of(int c) const {
    for (int j = 0; j < active; ++j) {
      if (columns[j][c] != 0) return j;
    }
    return -1;
  }
};

// Walks over the k-subsets with a given last row, from the highest place down. What the chosen
// upper rows cost is paid once for all that lies below them:
//
//     place i chooses row c[i] among the rows below c[i+1], reduced by c[i+1] .. c[k-1]
//
// The lower places keep their reduced rows, each in a table of its own. The upper places share one,
// which is reduced further on the way down and made again from the start when one of them moves:
// that is rare, and the tables of all places would take the cube of k.
class subset_walk {
 public:
  subset_walk(const matrix& m, int k)
      : all_(columns_of(m)),
        upper_{all_, m.cols()},
        lower_(std::min(k, lower_places)),
        chosen_(k),
        nonzero_(m.rows()) {
    for (int i = 0; i + 1 < lower_; ++i) {
      heed_interrupt();
      const int active = m.cols() - (k - 1 - i);
      places_.push_back({matrix(m.rows(), active), active});
    }
  }

  // Finds the first dependent subset with last row `last`; true if there is one.
  bool dependent_below(int last) {
    const int top = static_cast<int>(chosen_.size()) - 1;
    if (top >= lower_) reduce_upper_again(top + 1);
    return choose(top, last);
  }

  // The subset that was found.
  const std::vector<int>& chosen() const { return chosen_; }

 private:
  static matrix columns_of(const matrix& m) {
    matrix columns(m.rows(), m.cols());
    for (int i = 0; i < m.rows(); ++i) {
      for (int j = 0; j < m.cols(); ++j) columns[j][i] = m[i][j];
    }
    return columns;
  }

  const reduced_rows& at_place(int i) const { return i >= lower_ - 1 ? upper_ : places_[i]; }

  // Chooses row c for place i, and all that can be chosen below it.
  bool choose(int i, int c) {
    chosen_[i] = c;
    const int pivot = at_place(i).pivot_of(c);
    if (pivot < 0) {
      // The rows from c on depend on each other whatever is below: the first choice is the answer.
      std::iota(chosen_.begin(), chosen_.begin() + i, 0);
      return true;
    }
    if (i == 0) return false;
    if (i >= lower_) {
      reduce_upper(c, pivot);
    } else {
      reduce_into_place_below(i, c, pivot);
    }
    if (i == 1) return choose_first(c);
    heed_interrupt();
    for (int below = i - 1; below < c; ++below) {
      if (below >= many_rows) heed_interrupt();
      if (i - 1 >= lower_ && below > i - 1) reduce_upper_again(i);
      if (choose(i - 1, below)) return true;
    }
    return false;
  }

  // Reduces the rows below c of the upper table by row c, in place.
  void reduce_upper(int c, int pivot) {
    heed_interrupt();
    matrix& columns = upper_.columns;
    const int last = --upper_.active;
    if (pivot != last) {
      std::swap_ranges(columns[pivot].begin(), columns[pivot].end(), columns[last].begin());
    }
    for (int j = 0; j < last; ++j) {
      axpy(columns[j].first(c), columns[last].first(c), -(columns[j][c] / columns[last][c]));
    }
  }

  // Makes the upper table again: all rows, reduced by the chosen ones from place `first` on.
  void reduce_upper_again(int first) {
    upper_ = {all_, all_.rows()};
    for (int i = static_cast<int>(chosen_.size()) - 1; i >= first; --i) {
      reduce_upper(chosen_[i], upper_.pivot_of(chosen_[i]));
    }
  }

  // Fills the table of place i - 1 with the rows below c, reduced by row c.
  void reduce_into_place_below(int i, int c, int pivot) {
    const reduced_rows& here = at_place(i);
    matrix& next = places_[i - 1].columns;
    const const_row_view pivot_column = here.columns[pivot];
    int target = 0;
    for (int j = 0; j < here.active; ++j) {
      if (j == pivot) continue;
      const const_row_view column = here.columns[j];
      const row_view below = next[target].first(c);
      std::copy_n(column.begin(), c, below.begin());
      axpy(below, pivot_column.first(c), -(column[c] / pivot_column[c]));
      ++target;
    }
  }

  // Chooses for place 0 the first row below c that is zero.
  bool choose_first(int c) {
    const reduced_rows& here = at_place(0);
    const Fp8* column = here.columns[0].data();
    if (here.active > 1) {
      std::fill(nonzero_.begin(), nonzero_.end(), Fp8(0));
      for (int j = 0; j < here.active; ++j) mark_nonzero(here.columns[j], c);
      column = nonzero_.data();
    }
    const void* const zero = std::memchr(column, 0, c);
    if (zero == nullptr) return false;
    chosen_[0] = static_cast<int>(static_cast<const Fp8*>(zero) - column);
    return true;
  }

  void mark_nonzero(const_row_view column, int c) {
    for (int r = 0; r < c; ++r) {
      nonzero_[r] = Fp8(nonzero_[r].value() | column[r].value());
    }
  }

  // The columns of all rows, not reduced.
  matrix all_;
  // The table of the places from lower_ - 1 on.
  reduced_rows upper_;
  int lower_;
  // The tables of the places below lower_ - 1.
  std::vector<reduced_rows> places_;
  std::vector<int> chosen_;
  // Scratch: not zero where some column is not.
  row nonzero_;
};

}  // namespace

std::optional<std::vector<int>> first_dependent_subset(const matrix& m, int k,
                                                       const std::function<void(int)>& advanced) {
  subset_walk walk(m, k);
  for (int last = k - 1; last < m.rows(); ++last) {
    if (last > k - 1) advanced(last);
    if (walk.dependent_below(last)) return walk.chosen();
  }
  advanced(m.rows());
  return std::nullopt;
}

}  // namespace zep::linalg
