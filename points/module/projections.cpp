// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/projections.h"

#include <algorithm>
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

std::vector<syzygy_monomial> unpruned(const order_ideal& X, const std::vector<int>& candidates) {
  const int k = static_cast<int>(candidates.size());
  const auto t = [&](int a) -> const monom& { return X.O[candidates[a]]; };
  std::vector<syzygy_monomial> all;
  all.reserve(candidates.size() * (candidates.size() / 2 + dim));
  for (int a = 0; a < k; ++a) {
    heed_interrupt();
    for (int b = a + 1; b < k; ++b) all.push_back({t(a) / gcd(t(a), t(b)), a});
  }
  for (int a = 0; a < k; ++a) {
    heed_interrupt();
    for (int v = 0; v < dim; ++v) {
      monom power;
      power.set_exp(v, t(a).exp(v) + 1);
      all.push_back({power, a});
    }
  }
  return all;
}

// The indices of the monomials of one owner that stay. In the order of rising degrees, and of
// falling indices among equal ones, everything that can drop a monomial stands before it.
std::vector<int> minimal_ones(const std::vector<syzygy_monomial>& all, std::vector<int> indices) {
  const auto T = [&](int i) -> const monom& { return all[i].T; };
  std::sort(indices.begin(), indices.end(), [&](int i, int j) {
    const int difference = T(i).tot_deg() - T(j).tot_deg();
    return difference != 0 ? difference < 0 : i > j;
  });
  std::vector<int> kept;
  for (const int i : indices) {
    heed_interrupt();
    const bool dropped =
        std::any_of(kept.begin(), kept.end(), [&](int j) { return Zn_order_le(T(j), T(i)); });
    if (!dropped) kept.push_back(i);
  }
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
  const std::vector<syzygy_monomial> all = unpruned(X, candidates);
  std::vector<std::vector<int>> owned(candidates.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    owned[all[i].owner].push_back(static_cast<int>(i));
  }
  std::vector<int> kept;
  for (std::vector<int>& indices : owned) {
    const std::vector<int> minimal = minimal_ones(all, std::move(indices));
    kept.insert(kept.end(), minimal.begin(), minimal.end());
  }
  std::sort(kept.begin(), kept.end());
  std::vector<syzygy_monomial> found;
  found.reserve(kept.size());
  for (const int i : kept) found.push_back(all[i]);
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
