// SPDX-License-Identifier: GPL-3.0-or-later
// The level loop of linear strands.
#pragma once

#include <functional>
#include <vector>

#include "base/reporter.h"
#include "points/strand/form_vectors.h"
#include "points/strand/syzygy_spaces.h"

namespace zep::points {

// What is to be done with the vectors of a level, which are triangular from level 1 on; false ends
// the strand there.
using level_visitor = std::function<bool(int level, const form_vectors& vectors)>;

// Looks on while a strand is followed.
struct strand_watcher {
  // A level has so many vectors that are not zero.
  std::function<void(int level, int number)> found;
  // Comes after that; may be empty: then vectors need not be written out.
  level_visitor visit;

  // Both; whether to go on.
  bool sees(int level, int number, const form_vectors& vectors) const {
    found(level, number);
    return !visit || visit(level, vectors);
  }
};

// The strand that starts with polynomials of one degree at level 0: the vectors of each further
// level are the linear syzygies of those before, one for each pair, zero or not. Shows the watcher
// a level when it has vectors; level 0 in any case. Works pair by pair, whatever the polynomials
// are.
void strand_of_generators(form_vectors generators, reporter& to, const strand_watcher& watcher);

// The same strand for the generators of degree alpha >= 2 of a vanishing ideal, by linear algebra.
// K is the Koszul complex of R/(X_0). The leading terms of the generators are enough for a watcher
// that does not visit.
void strand_of_ideal(form_vectors generators, const koszul_complex& K, reporter& to,
                     const strand_watcher& watcher);

// The strand that starts with linear relations at level 1, which it shows in any case. Only
// syzygies that are not zero make up a further level. Works pair by pair.
void strand_of_relations(form_vectors relations, reporter& to, const strand_watcher& watcher);

// The same strand for the relations of degree 1 of the canonical module, by linear algebra. They
// are relations among the projections to the members of largest degree, in this order; all
// variables are members.
void strand_of_module(form_vectors relations, const koszul_complex& K, reporter& to,
                      const strand_watcher& watcher);

}  // namespace zep::points
