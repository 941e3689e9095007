// SPDX-License-Identifier: GPL-3.0-or-later
// Presentations that are computed, in the form in which plain mathematics examines them.
#pragma once

#include <set>
#include <vector>

#include "points/module/canonical_module.h"
#include "tests/points/plain_presentation.h"
#include "tests/points/point_sets.h"
#include "tests/points/special_sets.h"

namespace zep::tests {

inline presentation computed(const std::vector<coordinates>& points) {
  return omega(walked(points), nobody());
}

// With all exponents, that of X_0 last.
inline plain_form projective_form_of(const polynomial& f) {
  plain_form terms;
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    exponents e;
    for (int j = 0; j < proj; ++j) e.push_back(f.term(i).exp(j));
    if (f.coef(i) != 0) terms.emplace_back(e, f.coef(i).value());
  }
  return terms;
}

// The relations by their entries.
inline std::vector<std::vector<polynomial>> columns_of(const presentation& w_R) {
  std::vector<std::vector<polynomial>> columns;
  for (int j = 0; j < w_R.A_d_cols; ++j) columns.push_back(w_R.column(j));
  return columns;
}

inline plain_presentation presentation_of(const presentation& w_R) {
  plain_presentation result;
  for (const monom& t : w_R.pr_monom) result.generators.push_back(exponents_of(t));
  for (int j = 0; j < w_R.A_d_cols; ++j) {
    plain_relation relation;
    for (const polynomial& f : w_R.column(j)) relation.push_back(projective_form_of(f));
    result.relations.push_back(relation);
  }
  return result;
}

inline plain_presentation plain_presentation_of(const std::vector<coordinates>& points) {
  return presentation_of(computed(points));
}

inline faults faults_of(const std::vector<coordinates>& points, const plain_presentation& found) {
  return faults_of(plain_canonical_module(points), found);
}

inline faults faults_of_computed(const std::vector<coordinates>& points) {
  return faults_of(points, plain_presentation_of(points));
}

// Calls check(points) for random sets, and for such sets in a hyperplane.
template <class Check>
void for_each_random_or_flat_set(int rounds, Check check) {
  for_each_random_set({.seed = 67, .rounds = rounds}, [&](const std::vector<coordinates>& points) {
    check(points);
    std::set<coordinates> flat;
    for (coordinates point : points) {
      point[current_ring().order == term_order::deglex ? 0 : dim - 1] = 1;
      flat.insert(point);
    }
    check(std::vector<coordinates>(flat.begin(), flat.end()));
  });
}

}  // namespace zep::tests
