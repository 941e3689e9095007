// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/superfluous_syzygies.h"

#include <cstddef>
#include <utility>

#include "base/interrupt.h"
#include "linalg/row_space.h"
#include "points/ring/border_relations.h"

namespace zep::points {

namespace {

// So many relations are taken before it is asked if more are of use.
constexpr std::size_t relations_at_once = 256;

// The border elements modulo X_0 and their degrees.
class border_forms {
 public:
  explicit border_forms(const dual_module& W) : W_(W) {
    while (static_cast<int>(place_.size()) < W.no_of_border()) {
      const int d = W.degree(static_cast<int>(place_.size()));
      std::vector<int> elements;
      for (int b = static_cast<int>(place_.size()); b < W.no_of_border() && W.degree(b) == d; ++b) {
        place_.emplace_back(forms_.size(), elements.size());
        elements.push_back(b);
      }
      forms_.push_back(W.canonical_forms_of(elements, d, W.begin(d + 1)));
    }
  }

  // Calls use(coefficient, border element) for the border elements in x_v * (form of border b).
  template <class Use>
  void for_each_border_product(int b, int v, Use use) const {
    const auto [block, r] = place_[b];
    const const_row_view form = forms_[block][r];
    const int first = W_.begin(W_.degree(b));
    for (std::size_t i = 0; i < form.size(); ++i) {
      if (form[i] == 0) continue;
      const auto [is_member, position] = W_.times(first + static_cast<int>(i), v);
      if (!is_member) use(form[i], position);
    }
  }

  // A border element and a variable whose product is border element b; -1 if there is none.
  std::pair<int, int> origin(int b) const {
    const auto& [exponent, owner, member, variable_taken] = W_.border(b);
    const monom factor = W_.factor(member) * variable(variable_taken);
    for (int v = 0; v < dim; ++v) {
      if (factor.exp(v) == 0) continue;
      const int below = W_.find(exponent * variable(v), owner);
      if (below >= 0) return {below, v};
    }
    return {-1, -1};
  }

 private:
  const dual_module& W_;
  // The forms degree by degree; the degree and the row there of each border element.
  std::vector<matrix> forms_;
  std::vector<std::pair<int, int>> place_;
};

// The relations' constants in degree d.
row_space space_of_constants(const dual_module& W, const border_relations<border_forms>& constants,
                             int size, int d) {
  row_space relations(size);
  std::vector<row> some;
  for (int P = W.begin(d + 2); P < W.begin(d + 3); ++P) {
    for (int v = 0; v < dim; ++v) {
      if (W.times(P, v).is_member) continue;
      for (int w = v + 1; w < dim; ++w) {
        if (W.times(P, w).is_member) continue;
        some.push_back(constants.relation(W.times(P, v).position, w, W.times(P, w).position, v));
      }
    }
    if (some.size() < relations_at_once) continue;
    relations.add_rows(std::exchange(some, {}));
    if (relations.rank() == size) return relations;
  }
  relations.add_rows(std::move(some));
  return relations;
}

}  // namespace

std::vector<bool> superfluous_syzygies(const dual_module& W, const std::vector<int>& leading) {
  std::vector<bool> superfluous(leading.size());
  const border_forms forms(W);
  int end = 0;
  for (int first = 0; first < W.no_of_border(); first = end) {
    const int d = W.degree(first);
    while (end < W.no_of_border() && W.degree(end) == d) ++end;
    if (W.dimension(d + 2) == 0) continue;
    std::vector<std::size_t> indices;
    std::vector<int> of_degree;
    for (std::size_t i = 0; i < leading.size(); ++i) {
      if (leading[i] < first || leading[i] >= end) continue;
      indices.push_back(i);
      of_degree.push_back(leading[i]);
    }
    const border_relations constants(forms, of_degree, first, end);
    const row_space relations =
        space_of_constants(W, constants, static_cast<int>(of_degree.size()), d);
    for (const std::size_t pivot : relations.pivots()) superfluous[indices[pivot]] = true;
  }
  return superfluous;
}

}  // namespace zep::points
