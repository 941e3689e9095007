// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of a set of points.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "points/module/presentation.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/ideal.h"
#include "points/ring/order_ideal.h"
#include "points/walk/beta_matrix.h"
#include "points/walk/separators.h"

namespace zep::points {

// A result, or null as long as nobody has computed it. It never changes, so that copies share it.
template <class T>
using kept = std::shared_ptr<const T>;

// The numbers of the two linear strands, as the last computation of each has left them.
struct strand_numbers {
  // No numbers yet: zeros, one for each of n affine variables.
  explicit strand_numbers(int n) : linres{std::vector<int>(n), std::vector<int>(n)} {}

  // Row 0 for I_X, from its first entry on; row 1 for w_R, from its last entry back.
  std::array<std::vector<int>, 2> linres;
  // Whether the row counts as computed.
  bool linid = false;
  bool linom = false;
};

// The results that exist. A value: a copy is a picture of a moment, however large they are.
struct results {
  explicit results(int n) : strands(n) {}

  kept<order_ideal> bu_mo;
  // Absent until somebody asks for the separators, which alone let them decide on the properties.
  kept<verdicts> sep;
  kept<leading_forms> beta_matrix;
  kept<canonical_forms> Can_Lf;
  kept<ideal> min_Ix;
  kept<ideal> socle;
  kept<presentation> omega;

  // What two computations may have decided, separators and socle: true if X is known to have the
  // Cayley-Bacharach property, to be arithmetically Gorenstein.
  bool is_CB = false;
  bool is_ar_Go = false;

  strand_numbers strands;
};

// A presentation that says something: for a set without points there is nothing to keep.
inline bool has_generators(const kept<presentation>& w_R) {
  return w_R != nullptr && w_R->no_of_pr() != 0;
}

}  // namespace zep::points
