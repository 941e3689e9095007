// SPDX-License-Identifier: GPL-3.0-or-later
// Sets whose linear strands are tested.
#pragma once

#include <vector>

#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"
#include "points/module/canonical_module.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {

// Everything that the strands start from.
struct strand_starts {
  explicit strand_starts(const std::vector<coordinates>& points)
      : X(walked(points)), A(Can_Lf(X)), min_Ix(points::min_Ix(X, A)), w_R(omega(X, nobody())) {}

  points::order_ideal X;
  canonical_forms A;
  ideal min_Ix;
  presentation w_R;
};

template <class Check>
void for_each_special_or_random_set(Check check) {
  for_each_set(check);
  // Strands are long in spaces of higher dimension.
  for_each_random_set({.seed = 83, .rounds = 8, .most_points_of_P5 = 25}, check);
}

}  // namespace zep::tests
