// SPDX-License-Identifier: GPL-3.0-or-later
// The Buchberger-Moeller algorithm and the separators by one triangular reduction after the other:
// one look-up an operation, one candidate at a time, polynomials as rows of coefficients over O.
#pragma once

#include <algorithm>
#include <map>
#include <vector>

#include "arith/Fp8.h"
#include "arith/candidate.h"
#include "arith/ordering.h"
#include "arith/ring.h"
#include "linalg/matrix.h"

namespace zep::tests {

class plain_walk {
 public:
  explicit plain_walk(const matrix& P) : P_(P) {
    if (P.rows() > 0) candidates_[monom()] = mmm();
    while (!candidates_.empty()) {
      const mmm m = candidates_.extract(candidates_.begin()).mapped();
      if (m.ins == m.t.vars()) {
        examine(m);
      } else {
        B.push_back(m.t);
      }
    }
  }

  using row = std::vector<Fp8>;

  std::vector<monom> O;
  std::vector<monom> B;
  // The elements of the Groebner basis: leading monomials, and tails over O.
  std::vector<monom> leads;
  std::vector<row> tails;

  // Row i: the separator of point i. Requires distinct points.
  std::vector<row> separators() const {
    std::vector<row> f(P_.rows());
    for (int j = P_.rows() - 1; j >= 0; --j) {
      row& separator = f[pi_[j]];
      separator = q_[j];
      for (int k = j + 1; k < P_.rows(); ++k) {
        subtract(separator, f[pi_[k]], values_q_[j][pi_[k]]);
      }
    }
    return f;
  }

 private:
  static void subtract(row& f, const row& g, Fp8 c) {
    for (std::size_t i = 0; i < f.size(); ++i) f[i] -= c * g[i];
  }

  void examine(const mmm& m) {
    row values(P_.rows(), Fp8(1));
    for (int i = 0; m.n >= 0 && i < P_.rows(); ++i) {
      values[i] = values_[m.n][i] * P_[i][m.k];
    }
    row reduced = values;
    row f(P_.rows());
    for (std::size_t j = 0; j < O.size(); ++j) {
      const Fp8 c = reduced[pi_[j]];
      subtract(reduced, values_q_[j], c);
      subtract(f, q_[j], c);
    }
    const auto pivot =
        std::find_if(reduced.begin(), reduced.end(), [](Fp8 value) { return value != 0; });
    if (pivot == reduced.end()) {
      B.push_back(m.t);
      leads.push_back(m.t);
      f.resize(O.size());
      tails.push_back(f);
      return;
    }
    f[O.size()] = 1;
    const Fp8 c = Fp8(1) / *pivot;
    pi_.push_back(static_cast<int>(pivot - reduced.begin()));
    for (Fp8& value : reduced) value *= c;
    // Also where there is no inverse.
    reduced[pi_.back()] = 1;
    for (Fp8& coefficient : f) coefficient *= c;
    q_.push_back(f);
    values_q_.push_back(reduced);
    values_.push_back(values);
    for (int k = 0; k < dim; ++k) {
      const mmm next{m.t * variable(k), static_cast<int>(O.size()), k, 0};
      ++candidates_.try_emplace(next.t, next).first->second.ins;
    }
    O.push_back(m.t);
  }

  const matrix& P_;
  std::map<monom, mmm, monom_comparison> candidates_ =
      std::map<monom, mmm, monom_comparison>(monom_ordering_lt);
  // The triangular sequence, over O and by values, and its pivots; the values of O.
  std::vector<row> q_;
  std::vector<row> values_q_;
  std::vector<int> pi_;
  std::vector<row> values_;
};

}  // namespace zep::tests
