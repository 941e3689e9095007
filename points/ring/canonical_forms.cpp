// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/canonical_forms.h"

#include <algorithm>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/row_operations.h"

namespace zep::points {

namespace {

int top_degree_of(const std::vector<int>& begin) { return static_cast<int>(begin.size()) - 1; }

}  // namespace

canonical_forms::canonical_forms(quotient ring, const order_ideal& X) : ring_(ring), dim_(dim) {
  set_degrees(X.O);
  set_table(X);
  forms_.reserve(X.B.size());
  origins_.reserve(X.B.size());
  for (const monom& t : X.B) {
    heed_interrupt();
    add_form(X, t);
  }
  ensure("each border monomial has a form", [&] { return forms_.size() == X.B.size(); });
  ensure("members are counted by degree", [&] { return no_of_members() <= X.s(); });
}

int canonical_forms::begin(int d) const {
  return d < 0 ? 0 : begin_[std::min(d, top_degree() + 1)];
}

// The members of O are ascending; behind the first descent, or a second 1, is nothing but filling.
void canonical_forms::set_degrees(const std::vector<monom>& O) {
  int i = 0;
  for (const monom& t : O) {
    const int degree = t.tot_deg();
    if (degree < top_degree_of(begin_) || (degree == 0 && i > 0)) break;
    if (degree > top_degree_of(begin_)) begin_.push_back(i);
    ++i;
  }
  begin_.push_back(i);
}

void canonical_forms::set_table(const order_ideal& X) {
  table_.reserve(static_cast<std::size_t>(begin_.back()) * dim_);
  for (int i = 0; i < begin_.back(); ++i) {
    heed_interrupt();
    for (int v = 0; v < dim_; ++v) {
      const monom t = X.O[i] * variable(v);
      const int position = is_el_OO(X, t);
      table_.push_back(position >= 0 ? product{true, position} : product{false, is_el_B(X, t)});
    }
  }
}

// The forms of smaller border monomials are there already.
void canonical_forms::add_form(const order_ideal& X, const monom& t) {
  const int d = t.tot_deg();
  row f(begin(d + 1) - first(d));
  origin from{-1, -1};
  if (const int g = is_el_G(X, t); g >= 0) {
    const const_row_view tail = X.Ix.tail(g);
    const std::size_t start = std::min<std::size_t>(first(d), tail.size());
    std::copy(tail.begin() + static_cast<std::ptrdiff_t>(start), tail.end(), f.begin());
    scale(f, -Fp8(1));
  } else {
    // The greatest border monomial below t is the one that lacks the smallest variable.
    for (int v = dim_ - 1; v >= 0 && from.border < 0; --v) {
      monom below = t;
      below.set_exp(v, t.exp(v) - 1);
      if (t.exp(v) > 0) from = {is_el_B(X, below), v};
    }
    if (from.border >= 0) add_product(f, form(from.border), d - 1, from.variable);
  }
  forms_.push_back(std::move(f));
  origins_.push_back(from);
}

// The canonical form of a product has the length of the sum, or reaches up to its leading member.
void canonical_forms::add_product(row_view sum, const_row_view f, int d, int v) const {
  for_each_product(f, d, v, [&](Fp8 c, product p) {
    if (p.in_O) {
      sum[p.position - first(d + 1)] += c;
    } else {
      const const_row_view canonical = form(p.position);
      axpy(sum.first(canonical.size()), canonical, c);
    }
  });
}

}  // namespace zep::points
