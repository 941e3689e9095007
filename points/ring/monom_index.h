// SPDX-License-Identifier: GPL-3.0-or-later
// Look-up of monomials by key.
#pragma once

#include <unordered_map>
#include <vector>

#include "arith/monom.h"

namespace zep::points {

// Positions of the monomials of an ascending list; affine parts are compared. The answers are those
// of a search from the front that gives up at the first monomial greater than the one sought: of
// equal monomials the first counts, and one that stands behind a greater one is not found.
class monom_index {
 public:
  monom_index() = default;
  explicit monom_index(const std::vector<monom>& ascending);

  // The position of t, or -1.
  int find(const monom& t) const;

 private:
  std::unordered_map<monom, int, monom_hash, monom_equal> position_;
};

}  // namespace zep::points
