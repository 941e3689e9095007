// SPDX-License-Identifier: GPL-3.0-or-later
// The walk's list of candidates, candidate by candidate. The walk itself sorts all products of a
// degree at once and counts runs of equal ones.
#pragma once

#include <algorithm>

#include "arith/candidate.h"
#include "arith/list.h"
#include "arith/monom.h"

namespace zep::reference {

// True when an item equals x.
inline bool is_element(const list<monom>& items, const monom& x) {
  return std::find(items.begin(), items.end(), x) != items.end();
}

// Appends x unless it is an element.
inline void add_set(list<monom>& items, const monom& x) {
  if (!is_element(items, x)) items.add(x);
}

// True when the list holds a candidate equal to m. The first match is credited with one more `ins`;
// but where it is the last item, m itself is credited, which counts nothing once m is discarded.
bool element(list<mmm>& candidates, mmm& m);

}  // namespace zep::reference
