#include "scheme/bu_mo.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "arith/index.h"
#include "arith/mmm.h"
#include "arith/output.h"
#include "linalg/row_operations.h"
#include "scheme/consistency.h"
#include "scheme/hilbert.h"
#include "scheme/progress.h"

namespace zep {

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
//
// Member j of the triangular sequence is the pair of rows q[j] | ev_q[j], its coefficients over O
// (none behind j) and its values at the points (0 before pi[j]). Reducing the monomial at hand is
// subtracting multiples of such rows from the pair f | values.
class monomial_walk {
 public:
  explicit monomial_walk(const matrix& points)
      : q(points.rows(), points.rows()),
        ev_q(points.rows(), points.rows()),
        s_(points.rows()),
        coordinates_(transposed(points)),
        evaluations_(s_, s_),
        values_(at(s_)),
        f_(at(s_)) {
    O.reserve(at(s_));
    pi.reserve(at(s_));
  }

  // The orders in use are compatible with degrees, so the monomials of one degree come from the
  // members of O of the degree before, which are all known by then.
  void run(const progress& countdown) {
    std::vector<mmm> candidates;
    if (s_ > 0) candidates.emplace_back();
    while (!candidates.empty()) {
      const std::size_t first = O.size();
      for (const mmm& m : candidates) examine(m, countdown);
      candidates = multiples_of_members_from(first);
    }
  }

  std::vector<monom> O;
  std::vector<monom> B;
  std::vector<monom> leads;
  std::vector<std::vector<Fp8>> tails;
  matrix q;
  matrix ev_q;
  std::vector<int> pi;

 private:
  int size() const { return static_cast<int>(O.size()); }

  // All products of a member of O from `first` on with a variable, ascending; `ins` counts the ways
  // to reach each of them.
  std::vector<mmm> multiples_of_members_from(std::size_t first) const {
    std::vector<mmm> products;
    for (int n = static_cast<int>(first); n < size(); ++n) {
      for (int k = 0; k < dim; ++k) products.push_back({O[at(n)] * variable(k), n, k, 1});
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

  void examine(const mmm& m, const progress& countdown) {
    const bool all_divisors_in_O = m.ins == m.t.vars();
    if (!all_divisors_in_O) {
      B.push_back(m.t);
      return;
    }
    evaluate(m);
    reduce();
    const std::size_t pivot = first_nonzero(values_.data(), values_.size());
    if (pivot < values_.size()) {
      join(m.t, static_cast<int>(pivot));
      countdown.count(s_ - (size() - 1));
    } else {
      B.push_back(m.t);
      leads.push_back(m.t);
      tails.emplace_back(f_.begin(), f_.begin() + size());
    }
  }

  // The values of m.t at the points, from those of the member that it was made from. They are kept
  // in the row of `evaluations_` that t owns if it joins O.
  void evaluate(const mmm& m) {
    if (m.n < 0) {
      std::fill(values_.begin(), values_.end(), Fp8(1));
    } else {
      pointwise_product(values_.data(), evaluations_[m.n], coordinates_[m.k], values_.size());
    }
    if (size() < s_) std::copy(values_.begin(), values_.end(), evaluations_[size()]);
  }

  // Clears the values at all pivots. The coefficients of f gather what was subtracted; that of the
  // monomial itself is implied.
  void reduce() {
    std::fill(f_.begin(), f_.end(), Fp8(0));
    for (int j = 0; j < size(); ++j) {
      const int p = pi[at(j)];
      const Fp8 c = -values_[at(p)];
      axpy(values_.data() + p, ev_q[j] + p, c, at(s_ - p));
      axpy(f_.data(), q[j], c, at(j + 1));
    }
  }

  void join(const monom& t, int pivot) {
    const int last = size();
    O.push_back(t);
    pi.push_back(pivot);
    f_[at(last)] = 1;
    Fp8 c = values_[at(pivot)];
    c.invert();
    scale(f_.data(), c, at(last + 1));
    scale(values_.data() + pivot, c, at(s_ - pivot));
    values_[at(pivot)] = 1;
    std::copy(f_.begin(), f_.begin() + last + 1, q[last]);
    std::copy(values_.begin(), values_.end(), ev_q[last]);
  }

  int s_;
  matrix coordinates_;
  // Row r: the values of O[r] at the points.
  matrix evaluations_;
  std::vector<Fp8> values_;
  std::vector<Fp8> f_;
};

// Repeated points leave fewer than s pivots: lets the points that are left follow, so that pi is a
// permutation all the same.
void complete_permutation(std::vector<int>& pi, int s) {
  std::vector<bool> used(at(s), false);
  for (const int i : pi) used[at(i)] = true;
  for (int i = 0; i < s; ++i) {
    if (!used[at(i)]) pi.push_back(i);
  }
}

}  // namespace

void bu_mo(scheme& X) {
  const progress countdown("calculating triangular sequence ...\n");
  monomial_walk walk(X.P);
  walk.run(countdown);
  countdown.end_line();
  std::cout << Line;

  walk.O.resize(at(X.s));
  complete_permutation(walk.pi, X.s);
  monom_index O_index(walk.O);
  monom_index B_index(walk.B);
  groebner_basis Ix(std::move(walk.leads), std::move(walk.tails));

  X.O = std::move(walk.O);
  X.O_index = std::move(O_index);
  X.B = std::move(walk.B);
  X.B_index = std::move(B_index);
  X.Ix = std::move(Ix);
  X.q = std::move(walk.q);
  X.ev_q = std::move(walk.ev_q);
  X.pi = std::move(walk.pi);
  hilbert(X);
  X.has_bu_mo = true;
  ensure_consistent(X);
}

void need_bu_mo(scheme& X) {
  if (!X.has_bu_mo) bu_mo(X);
}

}  // namespace zep
