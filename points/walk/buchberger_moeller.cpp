// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/buchberger_moeller.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "arith/candidate.h"
#include "base/interrupt.h"
#include "linalg/row_operations.h"
#include "points/walk/separator_table.h"

namespace zep::points {

namespace {

// Column j of m as row j.
matrix transposed(const matrix& m) {
  matrix t(m.rows(), m.cols());
  for (int i = 0; i < m.rows(); ++i) {
    for (int j = 0; j < m.cols(); ++j) t[j][i] = m[i][j];
  }
  return t;
}

// The walk and what it has found so far.
class monomial_walk {
 public:
  monomial_walk(const matrix& points, const progress& countdown)
      : separators(points.rows()),
        s_(points.rows()),
        coordinates_(transposed(points)),
        countdown_(countdown) {
    O.reserve(s_);
  }

  // The orders in use are compatible with degrees, so the monomials of one degree come from the
  // members of O of the degree before, which are all known by then.
  void run() {
    std::vector<mmm> candidates;
    if (s_ > 0) candidates.emplace_back();
    while (!candidates.empty()) {
      const std::size_t first_member = O.size();
      const std::size_t first_outside = B.size();
      values_before_ = std::exchange(values_, {});
      decide(with_all_divisors_in_O(candidates));
      std::sort(B.begin() + static_cast<std::ptrdiff_t>(first_outside), B.end());
      candidates = multiples_of_members_from(first_member);
      first_before_ = static_cast<int>(first_member);
    }
  }

  std::vector<monom> O;
  std::vector<monom> B;
  std::vector<monom> leads;
  std::vector<row> tails;
  separator_table separators;

 private:
  // So many candidates are decided together: enough for long combinations of rows, few against the
  // number of points where memory matters.
  static constexpr std::size_t batch = 256;

  int size() const { return static_cast<int>(O.size()); }

  // All products of a member of O from `first` on with a variable, ascending; `ins` counts the ways
  // to reach each of them.
  std::vector<mmm> multiples_of_members_from(std::size_t first) const {
    std::vector<mmm> products;
    products.reserve((O.size() - first) * dim);
    for (int n = static_cast<int>(first); n < size(); ++n) {
      for (int k = 0; k < dim; ++k) products.push_back({O[n] * variable(k), n, k, 1});
    }
    std::sort(products.begin(), products.end());
    std::size_t kept = 0;
    for (const mmm& m : products) {
      if (kept > 0 && products[kept - 1] == m) {
        ++products[kept - 1].ins;
      } else {
        products[kept++] = m;
      }
    }
    products.resize(kept);
    return products;
  }

  // The candidates that may lie in O. The others belong to the border and go there.
  std::vector<mmm> with_all_divisors_in_O(const std::vector<mmm>& candidates) {
    std::vector<mmm> open;
    open.reserve(candidates.size());
    for (const mmm& m : candidates) {
      if (m.ins == m.t.vars()) {
        open.push_back(m);
      } else {
        B.push_back(m.t);
      }
    }
    return open;
  }

  void decide(std::span<const mmm> candidates) {
    while (!candidates.empty()) {
      const std::size_t n = std::min(batch, candidates.size());
      decide_batch(candidates.first(n));
      candidates = candidates.subspan(n);
    }
  }

  void decide_batch(std::span<const mmm> candidates) {
    std::vector<row> values;
    values.reserve(candidates.size());
    for (const mmm& m : candidates) {
      heed_interrupt();
      values.push_back(values_of(m));
    }
    std::vector<separator_table::verdict> verdicts = separators.take(values);
    for (std::size_t i = 0; i < candidates.size(); ++i) {
      const monom& t = candidates[i].t;
      if (verdicts[i].joined) {
        O.push_back(t);
        values_.push_back(std::move(values[i]));
        countdown_.count(static_cast<int>(s_) - (size() - 1));
      } else {
        B.push_back(t);
        leads.push_back(t);
        tails.push_back(std::move(verdicts[i].tail));
      }
    }
  }

  // The values of m.t at the points, from those of the member that it was made from.
  row values_of(const mmm& m) const {
    row values(s_, Fp8(1));
    if (m.n >= 0) {
      pointwise_product(values, values_before_[m.n - first_before_], coordinates_[m.k]);
    }
    return values;
  }

  std::size_t s_;
  matrix coordinates_;
  const progress& countdown_;
  // The values of the members of the degree at hand; those of the degree before, and the position
  // in O of the first of these.
  std::vector<row> values_;
  std::vector<row> values_before_;
  int first_before_ = 0;
};

}  // namespace

order_ideal bu_mo(const matrix& P, reporter& to) {
  const progress countdown(to, "calculating triangular sequence ...\n");
  monomial_walk walk(P, countdown);
  walk.run();
  countdown.end_line();
  to.end_of_computation();

  walk.O.resize(P.rows());
  return {std::move(walk.O), std::move(walk.B),
          groebner_basis(std::move(walk.leads), std::move(walk.tails)),
          walk.separators.separators()};
}

}  // namespace zep::points
