// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/koszul_complex.h"

#include <algorithm>
#include <numeric>

#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::points {

namespace {

Fp8 alternating(Fp8 c, int k) { return k % 2 == 0 ? c : -c; }

void ignore(std::size_t /*target*/, const koszul_complex::cell& /*source*/, Fp8 /*c*/) {}

}  // namespace

koszul_complex::koszul_complex(const canonical_forms& A)
    : A_(A),
      greatest_(A.no_of_members(), -1),
      degree_(A.no_of_members()),
      by_greatest_(A.top_degree() + 1) {
  for (int v = 0; v < dim && A.no_of_members() > 0; ++v) {
    if (A.times(0, v).in_O) variables_.push_back(v);
  }
  quotients_.assign(greatest_.size() * variables_.size(), -1);
  for (int m = 0; m < A.no_of_members(); ++m) {
    heed_interrupt();
    for (int v = 0; v < dim_V(); ++v) {
      const auto [in_O, position] = times(m, v);
      if (in_O) quotients_[static_cast<std::size_t>(position) * dim_V() + v] = m;
    }
  }
  for (int j = 0; j <= top_degree(); ++j) {
    by_greatest_[j].resize(variables_.size());
    for (int m = A.begin(j); m < A.begin(j + 1); ++m) {
      degree_[m] = j;
      for (int v = 0; v < dim_V(); ++v) {
        if (over(m, v) >= 0) greatest_[m] = v;
      }
      if (greatest_[m] >= 0) by_greatest_[j][greatest_[m]].push_back(m);
    }
  }
}

std::size_t koszul_complex::width(int i, int j) const {
  return static_cast<std::size_t>(binomial(dim_V(), i)) * static_cast<std::size_t>(A_.dimension(j));
}

// The cells of a member with greatest variable w of T: the others of T are below it.
std::int64_t koszul_complex::no_of_critical(int i, int j) const {
  if (i == 0) return j == 0 ? A_.dimension(0) : 0;
  std::int64_t number = 0;
  for (int m = A_.begin(j); m < A_.begin(j + 1); ++m) {
    for (int w = std::max(greatest_[m], 0); w < dim_V(); ++w) {
      if (!times(m, w).in_O) number += binomial(w, i - 1);
    }
  }
  return number;
}

std::vector<koszul_complex::cell> koszul_complex::critical_cells(int i, int j) const {
  std::vector<cell> cells;
  cells.reserve(static_cast<std::size_t>(no_of_critical(i, j)));
  for (const subset T : subsets(dim_V(), i)) {
    heed_interrupt();
    for (int m = A_.begin(j); m < A_.begin(j + 1); ++m) {
      if (kind_of({T, m}) == kind::critical) cells.push_back({T, m});
    }
  }
  return cells;
}

std::vector<std::size_t> koszul_complex::places(const std::vector<cell>& cells) const {
  std::vector<std::size_t> found;
  found.reserve(cells.size());
  for (const cell& c : cells) found.push_back(place(c));
  return found;
}

koszul_complex::kind koszul_complex::kind_of(const cell& c) const {
  const int w = greatest(c.T);
  if (greatest_[c.m] > w) return kind::target;
  if (w < 0) return kind::critical;
  return times(c.m, w).in_O ? kind::source : kind::critical;
}

std::size_t koszul_complex::place(const cell& c) const {
  const int j = degree_[c.m];
  return position_of(c.T) * A_.dimension(j) + (c.m - A_.begin(j));
}

koszul_complex::cell koszul_complex::cell_of_product(const monom& t) const {
  int w = dim_V() - 1;
  while (t.exp(variables_[w]) == 0) --w;
  int m = 0;
  for (int v = 0; v < dim_V(); ++v) {
    const int exponent = t.exp(variables_[v]) - (v == w ? 1 : 0);
    for (int k = 0; k < exponent; ++k) m = times(m, v).position;
  }
  return {single(w), m};
}

std::vector<int> koszul_complex::members(int j) const {
  std::vector<int> positions(A_.dimension(j));
  std::iota(positions.begin(), positions.end(), A_.begin(j));
  return positions;
}

koszul_complex::cell koszul_complex::source_of(const cell& target) const {
  const int w = greatest_[target.m];
  return {with(target.T, w), over(target.m, w)};
}

// Adds c times the boundary of e_T (x) O[m], but for the elements that are left out.
void koszul_complex::add_products(row_view chain, subset T, int m, int degree, Fp8 c,
                                  subset left_out) const {
  const std::size_t h = A_.dimension(degree + 1);
  for (subset rest = T & ~left_out; rest != 0; rest &= rest - 1) {
    const int v = least(rest);
    const auto [in_O, position] = times(m, v);
    if (!in_O && A_.form(position).empty()) continue;
    const row_view strip = chain.subspan(position_of(without(T, v)) * h, h);
    const Fp8 coef = alternating(c, no_of_smaller(T, v));
    if (in_O) {
      strip[position - A_.begin(degree + 1)] += coef;
    } else {
      const const_row_view form = A_.form(position);
      axpy(strip.first(form.size()), form, coef);
    }
  }
}

void koszul_complex::add_boundary(row_view chain, const cell& of, Fp8 c) const {
  add_products(chain, of.T, of.m, degree_[of.m], c, 0);
}

// A source takes away its target; all else that its boundary holds are cells with the same greatest
// variable, in their set, or with smaller multidegrees, so that targets that are new have a greater
// one: one pass over the variables is enough.
void koszul_complex::clear_targets(row_view chain, int i, int j, const step& use) const {
  if (j < 1 || j > top_degree()) return;
  const std::size_t h = A_.dimension(j);
  const std::vector<subset> all = subsets(dim_V(), i);
  for (int w = 0; w < dim_V(); ++w) {
    const std::vector<int>& members = by_greatest_[j][w];
    // The sets below w stand first.
    const auto below_w = static_cast<std::size_t>(binomial(w, i));
    for (std::size_t k = 0; k < below_w && !members.empty(); ++k) {
      heed_interrupt();
      for (const int m : members) {
        const std::size_t target = k * h + (m - A_.begin(j));
        const Fp8 at_target = chain[target];
        if (at_target == 0) continue;
        chain[target] = 0;
        const cell source{with(all[k], w), over(m, w)};
        const Fp8 c = alternating(-at_target, i);
        add_products(chain, source.T, source.m, j - 1, c, single(w));
        use(target, source, c);
      }
    }
  }
}

void koszul_complex::clear_targets(row_view chain, int i, int j) const {
  clear_targets(chain, i, j, ignore);
}

row koszul_complex::small_boundary(const cell& c, const step& use) const {
  const int i = size(c.T);
  const int j = degree_[c.m];
  row chain(width(i - 1, j + 1));
  add_boundary(chain, c, Fp8(1));
  clear_targets(chain, i - 1, j + 1, use);
  return chain;
}

row koszul_complex::small_boundary(const cell& c) const { return small_boundary(c, ignore); }

}  // namespace zep::points
