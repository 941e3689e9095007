// SPDX-License-Identifier: GPL-3.0-or-later
// The work set of the socle: filled by appending, emptied smallest first.
#pragma once

#include <iterator>
#include <list>
#include <utility>

#include "arith/ordering.h"

namespace zep::arith {

// A list of values of type T, ordered as they were added. `min_del` takes time linear in the
// length; work sets that grow with the number of points want a sorted vector instead.
template <class T>
class list {
 public:
  int no_of_items() const { return static_cast<int>(items_.size()); }
  bool empty() const { return items_.empty(); }

  // First and last item. The list must not be empty.
  const T& first() const { return items_.front(); }
  const T& last() const { return items_.back(); }

  // Appends a copy of x; duplicates are allowed.
  void add(const T& x) { items_.push_back(x); }
  void add(T&& x) { items_.push_back(std::move(x)); }

  // Moves the smallest item into `out`. Among equal smallest items the earliest behind the head is
  // taken, the head last. The list must not be empty.
  void min_del(T& out) {
    auto smallest = items_.begin();
    if (items_.size() > 1) {
      auto candidate = std::next(items_.begin());
      for (auto item = std::next(candidate); item != items_.end(); ++item) {
        if (*item < *candidate) candidate = item;
      }
      if (!(*candidate > *smallest)) smallest = candidate;
    }
    out = std::move(*smallest);
    items_.erase(smallest);
  }

  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::list<T> items_;
};

}  // namespace zep::arith
