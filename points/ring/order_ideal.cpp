// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/order_ideal.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/paranoid.h"

namespace zep::points {

namespace {

bool is_prime(int p) {
  for (int d = 2; d * d <= p; ++d) {
    if (p % d == 0) return false;
  }
  return true;
}

// O without the monomials 1 that only fill it up.
std::vector<monom> members(const order_ideal& X) {
  const auto second_one = std::find_if(X.O.begin() + std::min(X.s(), 1), X.O.end(),
                                       [](const monom& t) { return t.tot_deg() == 0; });
  return {X.O.begin(), second_one};
}

// Then O is full.
bool are_distinct(const order_ideal& X) { return static_cast<int>(members(X).size()) == X.s(); }

bool ascends(const std::vector<monom>& monomials) {
  return std::adjacent_find(monomials.begin(), monomials.end(), [](const monom& a, const monom& b) {
           return !(a < b);
         }) == monomials.end();
}

bool is_closed_under_division(const order_ideal& X, const std::vector<monom>& O) {
  return std::all_of(O.begin(), O.end(), [&](const monom& t) {
    for (int v = 0; v < dim; ++v) {
      if (t.exp(v) > 0 && is_el_OO(X, t / variable(v)) < 0) return false;
    }
    return true;
  });
}

// The border monomials are the products of members with variables that are no members.
bool is_border(const order_ideal& X, const std::vector<monom>& O) {
  std::size_t reached = 0;
  std::vector<bool> seen(X.B.size());
  for (const monom& t : O) {
    for (int v = 0; v < dim; ++v) {
      if (is_el_OO(X, t * variable(v)) >= 0) continue;
      const int b = is_el_B(X, t * variable(v));
      if (b < 0) return false;
      if (!seen[b]) ++reached;
      seen[b] = true;
    }
  }
  return reached == X.B.size();
}

// The separators are the values of the polynomial 1 at the points, put together again.
bool add_up_to_one(const matrix& separators) {
  row sum(separators.cols());
  for (int i = 0; i < separators.rows(); ++i) {
    for (int j = 0; j < separators.cols(); ++j) sum[j] += separators[i][j];
  }
  return sum.empty() || (sum.front() == 1 &&
                         std::all_of(sum.begin() + 1, sum.end(), [](Fp8 c) { return c == 0; }));
}

// Each element leads with a border monomial and has its tail below it.
bool is_reduced(const order_ideal& X) {
  for (int g = 0; g < X.Ix.no_of_gens(); ++g) {
    const const_row_view tail = X.Ix.tail(g);
    if (is_el_B(X, X.Ix.lead(g)) < 0) return false;
    if (tail.size() > X.O.size()) return false;
    if (!tail.empty() && !(X.O[tail.size() - 1] < X.Ix.lead(g))) return false;
  }
  return true;
}

void ensure_consistent(const order_ideal& X) {
  if constexpr (!paranoid) return;
  const std::vector<monom> O = members(X);
  ensure("O and its border ascend", [&] { return ascends(O) && ascends(X.B); });
  ensure("O is closed under division", [&] { return is_closed_under_division(X, O); });
  ensure("the border is that of O", [&] { return X.s() == 0 || is_border(X, O); });
  ensure("the Groebner basis is reduced", [&] { return is_reduced(X); });
  ensure("there is one separator for each point", [&] { return X.separator.rows() == X.s(); });
  ensure("a separator is a row over O", [&] { return X.s() == 0 || X.separator.cols() == X.s(); });
  ensure("the separators add up to 1",
         [&] { return !is_prime(Fp8::prime) || !are_distinct(X) || add_up_to_one(X.separator); });
}

}  // namespace

order_ideal::order_ideal(std::vector<monom> members, std::vector<monom> border,
                         groebner_basis basis, matrix separators)
    : O(std::move(members)),
      O_index(O),
      B(std::move(border)),
      B_index(B),
      Ix(std::move(basis)),
      separator(std::move(separators)) {
  ensure_consistent(*this);
  H = hilbert(O, Ix);
}

bool is_meaningful(const order_ideal& X) {
  return X.s() > 0 && is_prime(Fp8::prime) && are_distinct(X);
}

void require_meaningful(const order_ideal& X) {
  if (!is_prime(Fp8::prime)) {
    throw std::invalid_argument(std::to_string(Fp8::prime) + " is not a prime");
  }
  if (X.s() == 0) throw std::invalid_argument("there are no points");
  if (!are_distinct(X)) throw std::invalid_argument("there are equal points");
}

polynomial groebner_element(const order_ideal& X, int g) { return X.Ix.gen(g, X.O); }

polynomial separator_of(const order_ideal& X, int i) { return combination(X.separator[i], X.O); }

int separator_degree(const order_ideal& X, int i) {
  return X.O[leading_position(X.separator[i])].tot_deg();
}

int is_el_OO(const order_ideal& X, const monom& t) { return X.O_index.find(t); }

int is_el_G(const order_ideal& X, const monom& t) { return X.Ix.find(t); }

int is_el_B(const order_ideal& X, const monom& t) { return X.B_index.find(t); }

}  // namespace zep::points
