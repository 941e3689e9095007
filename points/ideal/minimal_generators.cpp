// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/minimal_generators.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/column_choice.h"
#include "linalg/row_space.h"
#include "points/ideal/neighbour_pairs.h"
#include "points/ring/border_relations.h"

namespace zep::points {

namespace {

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

using relations_among_generators = border_relations<artinian_border>;

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

// Relations are taken so many at a time: enough for long combinations of rows, few against those
// that are not looked at when all elements are superfluous already.
constexpr std::size_t batch = 256;

// What the constants in all relations of degree d span, over `size` basis elements.
row_space space_of_constants(const canonical_forms& forms,
                             const relations_among_generators& relations, int d, int size) {
  row_space constants(size);
  std::vector<relations_among_generators::pair> pairs;
  const auto take = [&] {
    constants.add_rows(relations.relations(pairs));
    pairs.clear();
  };
  for (int P = forms.begin(d - 2); P < forms.begin(d - 1); ++P) {
    for (int b = 1; b < dim; ++b) {
      const auto [b_in_O, with_b] = forms.times(P, b);
      for (int a = 0; a < b && !b_in_O; ++a) {
        const auto [a_in_O, with_a] = forms.times(P, a);
        if (!a_in_O) pairs.push_back({with_a, b, with_b, a});
      }
    }
    if (pairs.size() >= batch) take();
    if (constants.rank() == size) return constants;
  }
  take();
  return constants;
}

// The superfluous elements among those of one degree, from element `begin` on: the columns of the
// relations' constants, from the last element to the first. Most are asked for in that order, and
// pivots that come first cost nothing.
class elements_of_degree {
 public:
  elements_of_degree(const order_ideal& X, const canonical_forms& forms, stretch elements,
                     stretch border)
      : begin_(elements.begin), size_(elements.end - elements.begin), columns_(0, {}, {}) {
    std::vector<int> leading;
    for (int g = elements.end - 1; g >= elements.begin; --g) {
      leading.push_back(is_el_B(X, X.Ix.lead(g)));
    }
    const artinian_border B(X, forms);
    const relations_among_generators relations(B, leading, border.begin, border.end);
    const row_space constants =
        space_of_constants(forms, relations, X.Ix.lead(begin_).tot_deg(), size_);
    rank_ = constants.rank();
    if (0 < rank_ && rank_ < size_) {
      columns_ = column_choice(size_, constants.reduced(), constants.pivots());
    }
  }

  int begin() const { return begin_; }

  // Leaves out element g if it is superfluous besides those that have been left out; false if not.
  bool leave_out(int g) {
    if (rank_ == 0 || rank_ == size_) return rank_ == size_;
    return columns_.choose(begin_ + size_ - 1 - g);
  }

 private:
  int begin_;
  int size_;
  int rank_;
  column_choice columns_;
};

// In a thing of degree d only elements of degree d occur with constants, and these stand together.
std::vector<elements_of_degree> elements_by_degree(const order_ideal& X,
                                                   const canonical_forms& forms) {
  const int n = X.Ix.no_of_gens();
  std::vector<elements_of_degree> degrees;
  stretch border{0, 0};
  for (stretch elements{0, 0}; elements.end < n;) {
    const int d = X.Ix.lead(elements.end).tot_deg();
    elements = of_degree(d, elements.end, n, [&](int g) -> const monom& { return X.Ix.lead(g); });
    while (X.B[border.end].tot_deg() < d) ++border.end;
    border =
        of_degree(d, border.end, X.no_of_border(), [&](int b) -> const monom& { return X.B[b]; });
    degrees.emplace_back(X, forms, elements, border);
  }
  return degrees;
}

// The basis elements that make a minimal system, in the order in which solving the system of all
// relations' constants leaves the unknowns that are free. It takes as many steps as there are rows,
// one for each pair of neighbours, and that decides which columns are exchanged.
std::vector<int> needed_elements(const order_ideal& X, const canonical_forms& forms) {
  const int n = X.Ix.no_of_gens();
  std::vector<elements_of_degree> degrees = elements_by_degree(X, forms);
  return free_columns(n, neighbour_pairs(X, forms, n), [&](int g) {
    const auto above =
        std::upper_bound(degrees.begin(), degrees.end(), g,
                         [](int i, const elements_of_degree& E) { return i < E.begin(); });
    return std::prev(above)->leave_out(g);
  });
}

// Ascending by degree; of equal degrees those come first that stand first, but each choice moves
// the last candidate into the place of the chosen.
std::vector<int> ascending(std::vector<int> candidates, const order_ideal& X) {
  std::vector<int> chosen;
  chosen.reserve(candidates.size());
  const auto degree = [&](int g) { return X.Ix.lead(g).tot_deg(); };
  while (!candidates.empty()) {
    heed_interrupt();
    const int least = degree(*std::min_element(
        candidates.begin(), candidates.end(), [&](int g, int h) { return degree(g) < degree(h); }));
    for (std::size_t i = 0; i < candidates.size();) {
      if (degree(candidates[i]) > least) {
        ++i;
        continue;
      }
      chosen.push_back(candidates[i]);
      candidates[i] = candidates.back();
      candidates.pop_back();
    }
  }
  return chosen;
}

}  // namespace

ideal min_Ix(const order_ideal& X, const canonical_forms& forms) {
  const std::vector<int> chosen = ascending(needed_elements(X, forms), X);
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
