// SPDX-License-Identifier: GPL-3.0-or-later
// The canonical module of a set of points over K[X_0], for tests of what is made of it.
#pragma once

#include <algorithm>
#include <vector>

#include "points/module/dual_module.h"
#include "points/module/projections.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// The module with what it refers to.
struct module_of_points {
  explicit module_of_points(const std::vector<coordinates>& points)
      : X(walked(points)), R(quotient::R, X), W(X.O, R, candidate_projections(X)) {}
  ~module_of_points() = default;
  module_of_points(const module_of_points&) = delete;
  module_of_points& operator=(const module_of_points&) = delete;

  // The border elements that the syzygies lead.
  std::vector<int> leading() const {
    std::vector<int> found;
    for (const auto& [T, owner] : syzygy_monomials(X, candidate_projections(X))) {
      found.push_back(W.find(X.O[W.candidate(owner)] / T, owner));
    }
    return found;
  }

  points::order_ideal X;
  canonical_forms R;
  dual_module W;
};

// The canonical form of border element b, a row over the first `members` members.
inline row canonical_form(const dual_module& W, int b, int members) {
  const int d = W.degree(b);
  row form(members);
  const matrix from_degree = W.canonical_forms_of({b}, d, members);
  std::copy(from_degree[0].begin(), from_degree[0].end(), form.begin() + W.begin(d));
  return form;
}

}  // namespace zep::tests
