// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/socle.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "arith/list.h"
#include "base/interrupt.h"
#include "base/paranoid.h"

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

  // Adds the generators of degree d to the list.
  void add_generators(int d, list<polynomial>& generators) const {
    const int last = last_candidate(d);
    const int m = last - R_.begin(d) + 1;
    if (m <= 0) return;
    matrix system = annihilation(d, last, m);
    std::vector<int> columns = identity_order(m);
    std::vector<int> rows = identity_order(system.rows());
    const int found = system.solve(columns, rows);
    for (int v = 0; v < found; ++v) {
      heed_interrupt();
      const int free_column = columns[m - v - 1];
      row element(last + 1);
      element[last - free_column] = 1;
      for (int q = 0; q < m - found; ++q) {
        element[last - columns[q]] = -system[rows[q]][free_column];
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

  // Column c belongs to the candidate O[last - c], and there is a block of rows for each variable:
  // the products with it, over the members of degree d + 1.
  matrix annihilation(int d, int last, int m) const {
    const int height = R_.dimension(d + 1);
    matrix system(m, static_cast<int>(variables_.size()) * height);
    for (int c = 0; c < m; ++c) {
      heed_interrupt();
      int block = 0;
      for (const int v : variables_) {
        const auto [in_O, position] = R_.times(last - c, v);
        if (in_O) {
          system[block + position - R_.begin(d + 1)][c] = 1;
        } else {
          const const_row_view form = R_.form(position);
          for (int e = 0; e < height; ++e) system[block + e][c] = form[e];
        }
        block += height;
      }
    }
    return system;
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
