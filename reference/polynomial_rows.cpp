// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/polynomial_rows.h"

#include <algorithm>
#include <utility>

#include "points/strand/form_vectors.h"

namespace zep::reference {

namespace {

// The leading coefficient of entry j, 0 for a zero entry.
Fp8 leading_coefficient(const polynomial_row& r, int j) {
  const polynomial_row::term* const lead = leading_term(r, j);
  return lead != nullptr ? lead->c : Fp8(0);
}

}  // namespace

polynomial entry(const polynomial_row& r, int j) { return r.entries()[j]; }

const polynomial_row::term* leading_term(const polynomial_row& r, int j) {
  const auto lead = std::find_if(r.terms().begin(), r.terms().end(),
                                 [j](const polynomial_row::term& t) { return t.column == j; });
  return lead != r.terms().end() ? &*lead : nullptr;
}

polynomial_row difference(const polynomial_row& r, Fp8 c, const polynomial_row& b) {
  std::vector<polynomial_row::term> all = r.terms();
  for (const polynomial_row::term& t : b.terms()) all.push_back({t.m, t.column, -(c * t.c)});
  return {r.cols(), all};
}

void norm(polynomial_matrix& A, int i, int jj) { A[i] *= Fp8(1) / leading_coefficient(A[i], jj); }

void reduce_c(polynomial_matrix& A, int k, int i, int jj) {
  A[i] = difference(A[i], leading_coefficient(A[i], jj), A[k]);
}

std::vector<int> interreduce(polynomial_matrix& A) {
  std::vector<std::vector<polynomial>> entries;
  entries.reserve(A.size());
  for (const polynomial_row& row : A) entries.push_back(row.entries());
  form_vectors vectors = vectors_of(std::move(entries), A.empty() ? 0 : A.front().cols());
  vectors.interreduce();
  std::vector<int> Lt;
  for (int i = 0; i < vectors.count(); ++i) {
    A[i] = polynomial_row(vectors.components(i));
    Lt.push_back(vectors.position(i));
  }
  return Lt;
}

}  // namespace zep::reference
