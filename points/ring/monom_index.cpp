// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/monom_index.h"

#include "arith/ordering.h"

namespace zep::points {

monom_index::monom_index(const std::vector<monom>& ascending) {
  position_.reserve(ascending.size());
  const monom* greatest = nullptr;
  int i = 0;
  for (const monom& t : ascending) {
    if (greatest == nullptr || *greatest <= t) {
      position_.emplace(t, i);
      greatest = &t;
    }
    ++i;
  }
}

int monom_index::find(const monom& t) const {
  const auto found = position_.find(t);
  return found == position_.end() ? -1 : found->second;
}

}  // namespace zep::points
