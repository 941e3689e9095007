// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/projections.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "arith/ordering.h"
#include "base/interrupt.h"

namespace zep::points {

namespace {

// True for the monomials 1 that only fill O up (repeated points).
bool is_filling(const order_ideal& X, int i) { return is_el_OO(X, X.O[i]) != i; }

bool is_maximal(const order_ideal& X, const monom& t) {
  for (int v = 0; v < dim; ++v) {
    if (is_el_OO(X, t * variable(v)) >= 0) return false;
  }
  return true;
}

// The monomials of candidate a, without looking if others divide them: those that later candidates
// bring, and behind them the powers of the variables.
std::vector<monom> unpruned(const order_ideal& X, const std::vector<int>& candidates,
                            std::size_t a) {
  const monom& t = X.O[candidates[a]];
  std::vector<monom> all;
  all.reserve(candidates.size() - a - 1 + dim);
  for (std::size_t b = a + 1; b < candidates.size(); ++b) {
    all.push_back(t / gcd(t, X.O[candidates[b]]));
  }
  for (int v = 0; v < dim; ++v) {
    monom power;
    power.set_exp(v, t.exp(v) + 1);
    all.push_back(power);
  }
  return all;
}

// The indices of the monomials of one owner that stay, ascending. In the order of rising degrees,
// and of falling indices among equal ones, everything that can drop a monomial stands before it.
std::vector<int> minimal_ones(const std::vector<monom>& all) {
  std::vector<std::pair<int, int>> order;
  order.reserve(all.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    order.emplace_back(all[i].tot_deg(), -static_cast<int>(i));
  }
  std::sort(order.begin(), order.end());
  std::vector<int> kept;
  for (const auto& [degree, negative] : order) {
    heed_interrupt();
    const monom& T = all[-negative];
    const bool dropped =
        std::any_of(kept.begin(), kept.end(), [&](int j) { return Zn_order_le(all[j], T); });
    if (!dropped) kept.push_back(-negative);
  }
  std::sort(kept.begin(), kept.end());
  return kept;
}

}  // namespace

std::vector<int> candidate_projections(const order_ideal& X) {
  std::vector<int> candidates;
  for (int i = 0; i < X.s(); ++i) {
    heed_interrupt();
    if (!is_filling(X, i) && is_maximal(X, X.O[i])) candidates.push_back(i);
  }
  return candidates;
}

std::vector<syzygy_monomial> syzygy_monomials(const order_ideal& X,
                                              const std::vector<int>& candidates) {
  std::vector<syzygy_monomial> found;
  std::vector<syzygy_monomial> powers;
  for (std::size_t a = 0; a < candidates.size(); ++a) {
    heed_interrupt();
    const std::vector<monom> all = unpruned(X, candidates, a);
    for (const int i : minimal_ones(all)) {
      const bool is_power = i >= std::ssize(all) - dim;
      (is_power ? powers : found).push_back({all[i], static_cast<int>(a)});
    }
  }
  found.insert(found.end(), powers.begin(), powers.end());
  return found;
}

std::vector<monom> needed_monomials(const order_ideal& X,
                                    const std::vector<syzygy_monomial>& syzygies) {
  using monom_set = std::unordered_set<monom, monom_hash, monom_equal>;
  monom_set needed;
  const auto need = [&](const monom& t) {
    if (is_el_OO(X, t) < 0) needed.insert(t);
  };
  for (std::size_t i = 0; i < X.O.size(); ++i) {
    heed_interrupt();
    for (std::size_t j = i; j < X.O.size(); ++j) need(X.O[i] * X.O[j]);
  }
  monom_set outside;
  for (const syzygy_monomial& syzygy : syzygies) {
    if (is_el_OO(X, syzygy.T) < 0) outside.insert(syzygy.T);
  }
  for (const monom& T : outside) {
    heed_interrupt();
    for (const monom& t : X.O) need(T * t);
  }
  std::vector<monom> ascending;
  ascending.reserve(needed.size());
  // They may be so many that taking the set down, and sorting, take long.
  while (!needed.empty()) {
    heed_interrupt();
    ascending.push_back(needed.extract(needed.begin()).value());
  }
  std::sort(ascending.begin(), ascending.end(), [](const monom& s, const monom& t) {
    heed_interrupt();
    return s < t;
  });
  return ascending;
}

}  // namespace zep::points
