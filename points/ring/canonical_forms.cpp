#include "points/ring/canonical_forms.h"

#include <algorithm>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::points {

namespace {

int top_degree_of(const std::vector<int>& begin) { return static_cast<int>(begin.size()) - 1; }

}  // namespace

canonical_forms::canonical_forms(quotient ring, const std::vector<monom>& O,
                                 const monom_index& O_index, const std::vector<monom>& B,
                                 const monom_index& B_index, const groebner_basis& Ix)
    : ring_(ring), dim_(arith::dim) {
  set_degrees(O);
  set_table(O, O_index, B_index);
  forms_.reserve(B.size());
  origins_.reserve(B.size());
  for (const monom& t : B) {
    heed_interrupt();
    add_form(t, B_index, Ix);
  }
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

void canonical_forms::set_table(const std::vector<monom>& O, const monom_index& O_index,
                                const monom_index& B_index) {
  table_.reserve(static_cast<std::size_t>(begin_.back()) * dim_);
  for (int i = 0; i < begin_.back(); ++i) {
    heed_interrupt();
    for (int v = 0; v < dim_; ++v) {
      const monom t = O[i] * variable(v);
      const int position = O_index.find(t);
      table_.push_back(position >= 0 ? product{true, position} : product{false, B_index.find(t)});
    }
  }
}

// The forms of smaller border monomials are there already.
void canonical_forms::add_form(const monom& t, const monom_index& B_index,
                               const groebner_basis& Ix) {
  const int d = t.tot_deg();
  std::vector<Fp8> row(begin(d + 1) - first(d));
  origin from{-1, -1};
  if (const int g = Ix.find(t); g >= 0) {
    const std::span<const Fp8> tail = Ix.tail(g);
    const std::size_t start = std::min<std::size_t>(first(d), tail.size());
    std::copy(tail.begin() + static_cast<std::ptrdiff_t>(start), tail.end(), row.begin());
    scale(row.data(), -Fp8(1), row.size());
  } else {
    // The greatest border monomial below t is the one that lacks the smallest variable.
    for (int v = dim_ - 1; v >= 0 && from.border < 0; --v) {
      monom below = t;
      below.set_exp(v, t.exp(v) - 1);
      if (t.exp(v) > 0) from = {B_index.find(below), v};
    }
    if (from.border >= 0) add_product(row, form(from.border), d - 1, from.variable);
  }
  forms_.push_back(std::move(row));
  origins_.push_back(from);
}

void canonical_forms::add_product(std::span<Fp8> sum, std::span<const Fp8> row, int d,
                                  int v) const {
  for_each_product(row, d, v, [&](Fp8 c, product p) {
    if (p.in_O) {
      sum[p.position - first(d + 1)] += c;
    } else {
      const std::span<const Fp8> canonical = form(p.position);
      axpy(sum.data(), canonical.data(), c, canonical.size());
    }
  });
}

}  // namespace zep::points
