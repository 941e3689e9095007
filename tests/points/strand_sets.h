// Sets whose linear strands are tested.
#pragma once

#include <vector>

#include "points/ideal/minimal_generators.h"
#include "points/module/canonical_module.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {

// With everything that the strands start from.
inline scheme prepared(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  min_Ix(X);
  omega(X);
  return X;
}

template <class Check>
void for_each_special_or_random_set(Check check) {
  for_each_set(check);
  // Strands are long in spaces of higher dimension.
  for_each_random_set({.seed = 83, .rounds = 8, .most_points_of_P5 = 25}, check);
}

}  // namespace zep::tests
