// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/termwise_elimination.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::reference {

namespace {

int leads(const syzygy_matrix& S) { return static_cast<int>(S.leading.size()); }

syzygy_matrix rewritten(const dual_module& W, int d, std::vector<int> leading) {
  const int n = static_cast<int>(leading.size());
  const matrix forms = W.canonical_forms_of(leading, d, W.no_of_members());
  syzygy_matrix S{d, std::move(leading), matrix(n + W.no_of_members(), n)};
  for (int r = 0; r < n; ++r) {
    S.coefs[r][r] = 1;
    axpy(S.coefs[r].subspan(n + W.begin(d)), forms[r], -Fp8(1));
  }
  return S;
}

// Makes entry (r, column) 1 and the other entries of the column 0.
void clear_column(matrix& m, int r, int column) {
  scale(m[r], Fp8(1) / m[r][column]);
  for (int i = 0; i < m.rows(); ++i) {
    if (i != r) axpy(m[i], m[r], -m[i][column]);
  }
}

}  // namespace

std::vector<syzygy_matrix> syzygy_matrices(const dual_module& W, const std::vector<int>& leading) {
  std::vector<syzygy_matrix> all;
  for (int d = W.top_degree(); d >= -1; --d) {
    std::vector<int> of_degree;
    std::copy_if(leading.begin(), leading.end(), std::back_inserter(of_degree),
                 [&](int b) { return W.degree(b) == d; });
    if (!of_degree.empty()) all.push_back(rewritten(W, d, std::move(of_degree)));
  }
  return all;
}

termwise_elimination::termwise_elimination(const dual_module& W)
    : W_(W),
      eliminated_(W.no_of_candidates()),
      expression_(W.no_of_candidates(), polynomial_row(W.no_of_candidates())) {}

std::vector<polynomial_row> termwise_elimination::eliminate(syzygy_matrix S) {
  const int n = S.coefs.rows();
  std::vector<int> eliminates(n, -1);
  for (int r = 0; r < n; ++r) {
    heed_interrupt();
    const int a = constant_at(S, r);
    if (a < 0) continue;
    clear_column(S.coefs, r, leads(S) + W_.candidate(a));
    eliminates[r] = a;
  }
  std::vector<polynomial_row> columns;
  for (int r = 0; r < n; ++r) {
    const int a = eliminates[r];
    polynomial_row rest = column(S, r, a);
    if (a < 0) {
      columns.push_back(std::move(rest));
    } else {
      rest *= -Fp8(1);
      expression_[a] = std::move(rest);
    }
  }
  for (const int a : eliminates) {
    if (a >= 0) eliminated_[a] = true;
  }
  return columns;
}

// The first candidate at which row r has a constant that is a unit, or -1.
int termwise_elimination::constant_at(const syzygy_matrix& S, int r) const {
  for (int a = 0; a < W_.no_of_candidates(); ++a) {
    const int i = W_.candidate(a);
    if (i < W_.begin(S.degree) || i >= W_.begin(S.degree + 1)) continue;
    if (Fp8(1) / S.coefs[r][leads(S) + i] != 0) return a;
  }
  return -1;
}

// Row r without the term of the candidate that is left out (none if -1).
polynomial_row termwise_elimination::column(const syzygy_matrix& S, int r, int left_out) const {
  const const_row_view coefs = S.coefs[r];
  std::vector<polynomial_row::term> sum;
  for (int k = 0; k < leads(S); ++k) {
    if (coefs[k] == 0) continue;
    heed_interrupt();
    const auto& [exponent, owner, member, v] = W_.border(S.leading[k]);
    monom factor = W_.factor(member) * variable(v);
    prj(factor);
    add_multiple(sum, factor, owner, coefs[k]);
  }
  for (int i = W_.begin(S.degree); i < W_.no_of_members(); ++i) {
    const Fp8 c = coefs[leads(S) + i];
    if (c == 0) continue;
    heed_interrupt();
    const int a = W_.owner(i);
    if (a == left_out && i == W_.candidate(a)) continue;
    monom factor = W_.factor(i);
    prj(factor);
    factor.set_exp(proj - 1, W_.degree_of_member(i) - S.degree);
    add_multiple(sum, factor, a, c);
  }
  return {W_.no_of_candidates(), sum};
}

// Adds c * factor * candidate, for a projective factor.
void termwise_elimination::add_multiple(std::vector<polynomial_row::term>& sum, const monom& factor,
                                        int candidate, Fp8 c) const {
  if (!is_eliminated(candidate)) {
    sum.push_back({factor, candidate, c});
    return;
  }
  for (const polynomial_row::term& t : expression_[candidate].terms()) {
    sum.push_back({factor * t.m, t.column, c * t.c});
  }
}

}  // namespace zep::reference
