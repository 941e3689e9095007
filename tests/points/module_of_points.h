// The canonical module of a set of points over K[X_0], for tests of what is made of it.
#pragma once

#include <vector>

#include "points/module/dual_module.h"
#include "points/module/projections.h"
#include "points/walk/buchberger_moeller.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// The module with what it refers to.
struct module_of_points {
  explicit module_of_points(const std::vector<coordinates>& points)
      : X(with_bu_mo(points)),
        R(quotient::R, X.O, X.O_index, X.B, X.B_index, *X.Ix),
        W(X.O, R, candidate_projections(X)) {}
  ~module_of_points() = default;
  module_of_points(const module_of_points&) = delete;
  module_of_points& operator=(const module_of_points&) = delete;

  static scheme with_bu_mo(const std::vector<coordinates>& points) {
    scheme X = make_set(points);
    const silence quiet;
    bu_mo(X);
    return X;
  }

  // The border elements that the syzygies lead.
  std::vector<int> leading() const {
    std::vector<int> found;
    for (const auto& [T, owner] : syzygy_monomials(X, candidate_projections(X))) {
      found.push_back(W.find(X.O[W.candidate(owner)] / T, owner));
    }
    return found;
  }

  scheme X;
  canonical_forms R;
  dual_module W;
};

}  // namespace zep::tests
