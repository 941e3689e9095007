#include "scheme/polynomial_rows.h"

#include <algorithm>
#include <utility>

#include "arith/ordering.h"
#include "scheme/form_vectors.h"

namespace zep {

namespace {

using term = polynomial_row::term;

bool same_place(const term& a, const term& b) { return a.column == b.column && a.m == b.m; }

bool precedes(const term& a, const term& b) { return a.m == b.m ? a.column < b.column : a.m > b.m; }

std::vector<term> terms_of(const std::vector<polynomial>& entries) {
  std::vector<term> terms;
  for (int j = 0; j < static_cast<int>(entries.size()); ++j) {
    const polynomial& f = entries[at(j)];
    for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
      terms.push_back({f.term(i), j, f.coef(i)});
    }
  }
  return terms;
}

// The leading coefficient of entry j, 0 for a zero entry.
Fp8 leading_coefficient(const polynomial_row& row, int j) {
  const term* const lead = row.leading_term(j);
  return lead != nullptr ? lead->c : Fp8(0);
}

}  // namespace

polynomial_row::polynomial_row(int cols, std::vector<term> terms)
    : cols_(cols), terms_(std::move(terms)) {
  std::sort(terms_.begin(), terms_.end(), precedes);
  auto summed = terms_.begin();
  for (auto next = terms_.begin(); next != terms_.end();) {
    term sum = *next++;
    while (next != terms_.end() && same_place(*next, sum)) sum.c += (next++)->c;
    if (sum.c != 0) *summed++ = sum;
  }
  terms_.erase(summed, terms_.end());
  terms_.shrink_to_fit();
}

polynomial_row::polynomial_row(const std::vector<polynomial>& entries)
    : polynomial_row(static_cast<int>(entries.size()), terms_of(entries)) {}

std::vector<polynomial> polynomial_row::entries() const {
  std::vector<std::vector<monom>> monoms(at(cols_));
  std::vector<std::vector<Fp8>> coefs(at(cols_));
  for (const term& t : terms_) {
    monoms[at(t.column)].push_back(t.m);
    coefs[at(t.column)].push_back(t.c);
  }
  std::vector<polynomial> entries;
  entries.reserve(at(cols_));
  for (int j = 0; j < cols_; ++j) {
    entries.emplace_back(std::move(monoms[at(j)]), std::move(coefs[at(j)]));
  }
  return entries;
}

polynomial polynomial_row::entry(int j) const {
  std::vector<monom> monoms;
  std::vector<Fp8> coefs;
  for (const term& t : terms_) {
    if (t.column != j) continue;
    monoms.push_back(t.m);
    coefs.push_back(t.c);
  }
  return {std::move(monoms), std::move(coefs)};
}

const polynomial_row::term* polynomial_row::leading_term(int j) const {
  const auto lead =
      std::find_if(terms_.begin(), terms_.end(), [j](const term& t) { return t.column == j; });
  return lead != terms_.end() ? &*lead : nullptr;
}

void polynomial_row::operator*=(Fp8 c) {
  for (term& t : terms_) t.c *= c;
  std::erase_if(terms_, [](const term& t) { return t.c == 0; });
}

void polynomial_row::subtract(Fp8 c, const polynomial_row& b) {
  std::vector<term> all = terms_;
  for (const term& t : b.terms_) all.push_back({t.m, t.column, -(c * t.c)});
  *this = polynomial_row(cols_, std::move(all));
}

void norm(polynomial_matrix& A, int i, int jj) {
  polynomial_row& row = A[at(i)];
  row *= Fp8(1) / leading_coefficient(row, jj);
}

void reduce_c(polynomial_matrix& A, int k, int i, int jj) {
  polynomial_row& row = A[at(i)];
  row.subtract(leading_coefficient(row, jj), A[at(k)]);
}

std::vector<int> interreduce(polynomial_matrix& A) {
  std::vector<std::vector<polynomial>> entries;
  entries.reserve(A.size());
  for (const polynomial_row& row : A) entries.push_back(row.entries());
  form_vectors vectors = vectors_of(entries, A.empty() ? 0 : A.front().cols());
  vectors.interreduce();
  std::vector<int> Lt;
  for (int i = 0; i < vectors.count(); ++i) {
    A[at(i)] = polynomial_row(vectors.components(i));
    Lt.push_back(vectors.position(i));
  }
  return Lt;
}

}  // namespace zep
