// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/cell_space.h"

#include <utility>

#include "base/interrupt.h"
#include "linalg/combinations.h"

namespace zep::points {

cell_space::cell_space(std::size_t places, int dimension)
    : dimension_(dimension), coordinate_(places, -1), index_(places, -1) {}

void cell_space::set_functional(std::size_t place, row functional) {
  index_[place] = static_cast<int>(functionals_.size());
  functionals_.push_back(std::move(functional));
}

std::vector<row> cell_space::sums(std::span<const summand> summands,
                                  std::span<const const_row_view> functionals) const {
  std::vector<row> result(functionals.size(), row(static_cast<std::size_t>(dimension_)));
  // The functionals that the summands name, numbered as they occur.
  std::vector<int> number(functionals_.size(), -1);
  std::vector<const_row_view> named;
  for (const auto& [place, from, sign] : summands) {
    const int index = index_[place];
    if (index < 0 || number[index] >= 0) continue;
    number[index] = static_cast<int>(named.size());
    named.emplace_back(functionals_[index]);
  }
  matrix coefficients(static_cast<int>(named.size()), static_cast<int>(functionals.size()));
  for (std::size_t i = 0; i < functionals.size(); ++i) {
    heed_interrupt();
    const const_row_view f = functionals[i];
    const row_view of_named = coefficients[static_cast<int>(i)];
    for (const auto& [place, from, sign] : summands) {
      if (coordinate_[place] >= 0) {
        result[i][coordinate_[place]] += sign * f[from];
      } else if (index_[place] >= 0) {
        of_named[number[index_[place]]] += sign * f[from];
      }
    }
  }
  if (!named.empty() && !result.empty()) {
    const std::vector<row_view> views(result.begin(), result.end());
    add_combinations(views, coefficients, named);
  }
  return result;
}

}  // namespace zep::points
