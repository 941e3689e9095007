// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/socle.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "arith/list.h"
#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/column_choice.h"
#include "points/ideal/annihilation.h"

namespace zep::points {

namespace {

// The socle in the degrees below the top one.
class socle_finder {
 public:
  socle_finder(const order_ideal& X, const canonical_forms& R) : O_(X.O), R_(R) {
    // The variables in O; the others are combinations of them in R/(X_0).
    for (int i = R_.begin(1); i < R_.begin(2); ++i) {
      for (int v = 0; v < O_[i].dim(); ++v) {
        if (O_[i].exp(v) == 1) variables_.push_back(v);
      }
    }
  }

  // Adds the generators of degree d to the list: the solutions of the system that says that all
  // variables annihilate them, each 1 at one of the unknowns that solving it leaves free. It has a
  // column for each candidate, the greatest first, and so many rows for each variable as there are
  // members of degree d + 1.
  void add_generators(int d, list<polynomial>& generators) const {
    const int last = last_candidate(d);
    const int m = last - R_.begin(d) + 1;
    if (m <= 0) return;
    std::optional<column_choice> system = annihilation(R_, variables_, d, m);
    if (!system) return;
    const int rows = static_cast<int>(variables_.size()) * R_.dimension(d + 1);
    std::vector<int> free_ones =
        free_columns(m, std::min(m, rows), [&](int c) { return system->choose(c); });
    std::reverse(free_ones.begin(), free_ones.end());
    for (const int free_column : free_ones) {
      heed_interrupt();
      row element(last + 1);
      element[last - free_column] = 1;
      for (int i = 0; i < system->rank(); ++i) {
        element[last - system->pivot(i)] = -(*system)[i][free_column];
      }
      generators.add(combination(element, O_));
    }
  }

 private:
  bool is_maximal(int i) const {
    return std::none_of(variables_.begin(), variables_.end(),
                        [&](int v) { return R_.times(i, v).in_O; });
  }

  // The last member of degree d that no variable takes to another member; greater ones can't lead
  // an element of the socle. Smaller than begin(d) if there is none.
  int last_candidate(int d) const {
    int k = R_.begin(d + 1) - 1;
    while (k >= R_.begin(d) && !is_maximal(k)) --k;
    return k;
  }

  const std::vector<monom>& O_;
  const canonical_forms& R_;
  std::vector<int> variables_;
};

}  // namespace

ideal socle(const order_ideal& X, const canonical_forms& R) {
  const int top = R.top_degree();
  list<polynomial> generators;
  for (int k = R.begin(top + 1) - 1; k >= R.begin(top); --k) {
    generators.add(polynomial(X.O[k]));
  }
  const socle_finder finder(X, R);
  for (int d = top - 1; d >= std::max(X.H.alpha - 1, 1); --d) finder.add_generators(d, generators);

  ideal result(generators.no_of_items());
  for (polynomial& f : result.gen) {
    heed_interrupt();
    generators.min_del(f);
  }
  ensure("the generators of the socle ascend",
         [&] { return std::is_sorted(result.gen.begin(), result.gen.end()); });
  return result;
}

}  // namespace zep::points
