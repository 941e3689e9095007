// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/module_monomials.h"

#include <algorithm>

#include "arith/ordering.h"
#include "base/interrupt.h"
#include "linalg/matrix.h"

namespace zep::points {

bool precedes(const module_monomial& a, const module_monomial& b) {
  return a.component != b.component ? a.component < b.component : monom_ordering_lt(b.m, a.m);
}

std::vector<int> sort(std::vector<module_monomial>& monomials) {
  std::vector<int> order = identity_order(static_cast<int>(monomials.size()));
  std::sort(order.begin(), order.end(), [&](int i, int j) {
    heed_interrupt();
    return precedes(monomials[i], monomials[j]);
  });
  std::vector<module_monomial> sorted;
  sorted.reserve(monomials.size());
  std::vector<int> position(monomials.size());
  for (const int i : order) {
    position[i] = static_cast<int>(sorted.size());
    sorted.push_back(monomials[i]);
  }
  monomials.swap(sorted);
  return position;
}

int numbered_monomials::number(const module_monomial& t) {
  const auto [found, is_new] = number_.try_emplace(t, static_cast<int>(monomials_.size()));
  if (is_new) monomials_.push_back(t);
  return found->second;
}

std::size_t numbered_monomials::hash::operator()(const module_monomial& t) const {
  return monom_hash()(t.m) + static_cast<std::size_t>(t.component);
}

bool numbered_monomials::equal::operator()(const module_monomial& a,
                                           const module_monomial& b) const {
  return a.component == b.component && aff_eq(a.m, b.m);
}

}  // namespace zep::points
