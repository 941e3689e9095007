// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/uniformity.h"

#include "linalg/dependent_subset.h"

namespace zep::points {

std::optional<std::vector<int>> dependent_separators(const matrix& beta, int k, reporter& to) {
  if (k == 0) return std::nullopt;
  return first_dependent_subset(beta, k, [&](int last) { to.advance(beta.rows() - last + 1); });
}

}  // namespace zep::points
