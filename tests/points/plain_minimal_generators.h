// SPDX-License-Identifier: GPL-3.0-or-later
// Minimal generators, pair by pair and row by row.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "linalg/matrix.h"
#include "linalg/row_operations.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/order_ideal.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// A member of O and two variables that take it to multiples of two leading monomials; their least
// common multiple is the product of the three.
struct plain_neighbours {
  int position;
  int a;
  int b;
};

inline int last_slot_with_more(const monom& s, const monom& t) {
  int slot = -1;
  for (int i = 0; i < s.dim(); ++i) {
    if (s.exp(i) > t.exp(i)) slot = i;
  }
  return slot;
}

// All pairs of Groebner basis elements are compared.
inline std::vector<plain_neighbours> plain_pairs_of_neighbours(const points::order_ideal& X) {
  std::vector<plain_neighbours> pairs;
  for (int i = 0; i < X.Ix.no_of_gens(); ++i) {
    for (int j = i + 1; j < X.Ix.no_of_gens(); ++j) {
      const monom& s = X.Ix.lead(i);
      const monom& t = X.Ix.lead(j);
      const int a = last_slot_with_more(s, t);
      const int b = last_slot_with_more(t, s);
      if (a < 0 || b < 0) continue;
      const int position = is_el_OO(X, lcm(s, t) / (variable(a) * variable(b)));
      if (position >= 0) pairs.push_back({position, a, b});
    }
  }
  return pairs;
}

// The constants of border monomials over the Groebner basis elements of their degree, one border
// monomial after the other, and of the relations of neighbours.
class plain_constants {
 public:
  plain_constants(const points::order_ideal& X, const points::canonical_forms& forms)
      : X_(X), forms_(forms) {
    for (int b = 0; b < X.no_of_border(); ++b) constants_.push_back(of_border(b));
  }

  // Over all Groebner basis elements.
  row of_relation(const plain_neighbours& pair) const {
    row sum(X_.Ix.no_of_gens());
    add_products(sum, forms_.times(pair.position, pair.a).position, pair.b, Fp8(1));
    add_products(sum, forms_.times(pair.position, pair.b).position, pair.a, -Fp8(1));
    return sum;
  }

 private:
  row of_border(int b) const {
    row sum(X_.Ix.no_of_gens());
    if (const int g = is_el_G(X_, X_.B[b]); g >= 0) {
      sum[g] = 1;
    } else {
      add_products(sum, forms_.origin_of(b).border, forms_.origin_of(b).variable, Fp8(1));
    }
    return sum;
  }

  void add_products(row& sum, int b, int v, Fp8 c) const {
    forms_.for_each_product(forms_.form(b), X_.B[b].tot_deg(), v,
                            [&](Fp8 coef, points::canonical_forms::product p) {
                              if (!p.in_O) axpy(sum, constants_[p.position], c * coef);
                            });
  }

  const points::order_ideal& X_;
  const points::canonical_forms& forms_;
  std::vector<row> constants_;
};

// The Groebner basis elements that are kept, in their order: the relations' constants are one
// matrix, with a row for each pair of neighbours, which is solved.
inline std::vector<int> plain_minimal_elements(const points::order_ideal& X,
                                               const points::canonical_forms& forms) {
  const std::vector<plain_neighbours> pairs = plain_pairs_of_neighbours(X);
  const plain_constants constants(X, forms);
  matrix N(X.Ix.no_of_gens(), static_cast<int>(pairs.size()));
  for (int i = 0; i < N.rows(); ++i) {
    const row relation = constants.of_relation(pairs[i]);
    std::copy(relation.begin(), relation.end(), N[i].begin());
  }
  std::vector<int> columns = identity_order(N.cols());
  std::vector<int> rows = identity_order(N.rows());
  const int d = N.solve(columns, rows);
  std::vector<int> candidates(columns.end() - d, columns.end());
  std::vector<int> kept;
  while (!candidates.empty()) {
    const auto least = std::min_element(candidates.begin(), candidates.end(), [&](int g, int h) {
      return X.Ix.lead(g).tot_deg() < X.Ix.lead(h).tot_deg();
    });
    kept.push_back(*least);
    *least = candidates.back();
    candidates.pop_back();
  }
  return kept;
}

}  // namespace zep::tests
