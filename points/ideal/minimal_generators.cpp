// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/minimal_generators.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/row_space.h"
#include "points/ring/border_relations.h"

namespace zep::points {

namespace {

// Two border monomials P * x_a and P * x_b, divisible by the leading monomials of two Groebner
// basis elements; P, the member of O at this position, times x_a * x_b is their least common
// multiple.
struct neighbours {
  int position;
  int a;
  int b;
};

// The last slot in which s has the larger exponent, or -1.
int last_larger_slot(const monom& s, const monom& t) {
  int slot = -1;
  for (int i = 0; i < s.dim(); ++i) {
    if (s.exp(i) > t.exp(i)) slot = i;
  }
  return slot;
}

std::vector<neighbours> neighbour_pairs(const order_ideal& X) {
  std::vector<neighbours> pairs;
  const int n = X.Ix.no_of_gens();
  for (int i = 0; i < n; ++i) {
    heed_interrupt();
    const monom& s = X.Ix.lead(i);
    for (int j = i + 1; j < n; ++j) {
      const monom& t = X.Ix.lead(j);
      monom P = lcm(s, t);
      const int a = last_larger_slot(s, t);
      const int b = last_larger_slot(t, s);
      if (a < 0 || b < 0 || P.tot_deg() - 2 > X.H.sigma + 1) continue;
      P.set_exp(a, P.exp(a) - 1);
      P.set_exp(b, P.exp(b) - 1);
      const int position = is_el_OO(X, P);
      if (position >= 0) pairs.push_back({position, a, b});
    }
  }
  return pairs;
}

// The border of the Artinian reduction, as border_relations wants it. The border form of b is B[b]
// minus its canonical form.
class artinian_border {
 public:
  artinian_border(const order_ideal& X, const canonical_forms& forms) : X_(X), forms_(forms) {}

  std::pair<int, int> origin(int b) const {
    const auto [border, variable] = forms_.origin_of(b);
    return {border, variable};
  }

  template <class Use>
  void for_each_border_product(int b, int v, Use use) const {
    forms_.for_each_product(forms_.form(b), X_.B[b].tot_deg(), v,
                            [&](Fp8 c, canonical_forms::product p) {
                              if (!p.in_O) use(c, p.position);
                            });
  }

 private:
  const order_ideal& X_;
  const canonical_forms& forms_;
};

// The part of an ascending list that has one degree, from `begin` up to `end`.
struct stretch {
  int begin;
  int end;
};

// The monomials monomial(0), monomial(1), ... below n of degree d, from `begin` on.
template <class Monomial>
stretch of_degree(int d, int begin, int n, Monomial monomial) {
  int end = begin;
  while (end < n && monomial(end).tot_deg() == d) ++end;
  return {begin, end};
}

// The constants in the relations of neighbours of one degree, over the basis elements of the
// degree.
row_space constants_of_degree(const order_ideal& X, const canonical_forms& forms, stretch elements,
                              stretch border, const std::vector<neighbours>& pairs) {
  std::vector<int> leading;
  for (int g = elements.begin; g < elements.end; ++g) leading.push_back(is_el_B(X, X.Ix.lead(g)));
  const artinian_border B(X, forms);
  const border_relations relations(B, leading, border.begin, border.end);
  row_space constants(elements.end - elements.begin);
  for (const neighbours& pair : pairs) {
    constants.add(relations.relation(forms.times(pair.position, pair.a).position, pair.b,
                                     forms.times(pair.position, pair.b).position, pair.a));
  }
  return constants;
}

// The relations' constants, one row for each pair of neighbours, but dependent rows left out. In a
// thing of degree d only elements of degree d occur with constants, and these stand together.
matrix relation_matrix(const order_ideal& X, const canonical_forms& forms,
                       const std::vector<neighbours>& pairs) {
  const int n = X.Ix.no_of_gens();
  // Members of O reach degree sigma + 1, relations two more.
  std::vector<std::vector<neighbours>> by_degree(X.H.sigma + 4);
  for (const neighbours& pair : pairs) {
    by_degree[X.O[pair.position].tot_deg() + 2].push_back(pair);
  }
  std::vector<std::pair<int, matrix>> blocks;
  int rank = 0;
  stretch border{0, 0};
  for (stretch elements{0, 0}; elements.end < n;) {
    const int d = X.Ix.lead(elements.end).tot_deg();
    elements = of_degree(d, elements.end, n, [&](int g) -> const monom& { return X.Ix.lead(g); });
    while (X.B[border.end].tot_deg() < d) ++border.end;
    border =
        of_degree(d, border.end, X.no_of_border(), [&](int b) -> const monom& { return X.B[b]; });
    const row_space constants = constants_of_degree(X, forms, elements, border, by_degree[d]);
    rank += constants.rank();
    blocks.emplace_back(elements.begin, constants.basis());
  }
  matrix N(n, rank);
  int next = 0;
  for (const auto& [first, block] : blocks) {
    for (int i = 0; i < block.rows(); ++i) {
      std::copy(block[i].begin(), block[i].end(), N[next++].begin() + first);
    }
  }
  return N;
}

// The basis elements that make a minimal system, ascending by degree; of equal degrees those come
// first that stand first, but each choice moves the last candidate into the place of the chosen.
std::vector<int> minimal_elements(const order_ideal& X, const canonical_forms& forms) {
  const int n = X.Ix.no_of_gens();
  const std::vector<neighbours> pairs = neighbour_pairs(X);
  matrix N = relation_matrix(X, forms, pairs);
  std::vector<int> columns = identity_order(n);
  std::vector<int> rows = identity_order(N.rows());
  // Dependent rows are not there, but they count: the number of steps decides which columns are
  // still exchanged when the pivots are found, and so in which order the generators come.
  const int d = N.solve(columns, rows, std::min(n, static_cast<int>(pairs.size())));
  std::vector<int> candidates(columns.end() - d, columns.end());
  std::vector<int> chosen;
  while (!candidates.empty()) {
    heed_interrupt();
    const auto least = std::min_element(candidates.begin(), candidates.end(), [&](int g, int h) {
      return X.Ix.lead(g).tot_deg() < X.Ix.lead(h).tot_deg();
    });
    chosen.push_back(*least);
    *least = candidates.back();
    candidates.pop_back();
  }
  return chosen;
}

}  // namespace

ideal min_Ix(const order_ideal& X, const canonical_forms& forms) {
  const std::vector<int> chosen = minimal_elements(X, forms);
  ideal generators(static_cast<int>(chosen.size()));
  for (std::size_t m = 0; m < chosen.size(); ++m) {
    heed_interrupt();
    hom(generators.gen[m], groebner_element(X, chosen[m]));
  }
  ensure("minimal generators ascend by degree", [&] {
    return std::is_sorted(generators.gen.begin(), generators.gen.end(),
                          [](const polynomial& f, const polynomial& g) {
                            return f.term(0).tot_deg() < g.term(0).tot_deg();
                          });
  });
  return generators;
}

}  // namespace zep::points
