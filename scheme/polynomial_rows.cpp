#include "scheme/polynomial_rows.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "arith/ordering.h"
#include "arith/ring.h"

namespace zep {

namespace {

using term = polynomial_row::term;

bool same_place(const term& a, const term& b) { return a.column == b.column && a.m == b.m; }

bool precedes(const term& a, const term& b) { return a.m == b.m ? a.column < b.column : a.m > b.m; }

// Rows by their pivots; coefficients do not count.
struct place_hash {
  std::size_t operator()(const term& t) const {
    const int power = t.m.dim() == proj ? t.m.exp(proj - 1) : 0;
    std::size_t h = monom_hash()(t.m);
    for (const int key : {t.column, power}) {
      h = (h ^ static_cast<std::size_t>(key)) * std::size_t{0x9E3779B97F4A7C15U};
    }
    return h;
  }
};
struct place_equal {
  bool operator()(const term& a, const term& b) const { return same_place(a, b); }
};
using rows_by_pivot = std::unordered_map<term, int, place_hash, place_equal>;

// The leading coefficient of entry j, 0 for a zero entry.
Fp8 leading_coefficient(const polynomial_row& row, int j) {
  const term* const lead = row.leading_term(j);
  return lead != nullptr ? lead->c : Fp8(0);
}

// Every row in `done` leads with 1, so a step takes the pivot of row i away; as pivots descend,
// there is an end to that in any characteristic.
void reduce_by_earlier_rows(polynomial_matrix& A, int i, const rows_by_pivot& done) {
  const polynomial_row& row = A[at(i)];
  while (!row.is_zero()) {
    const auto earlier = done.find(row.pivot());
    if (earlier == done.end()) return;
    reduce_c(A, earlier->second, i, row.pivot().column);
  }
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
    : cols_(static_cast<int>(entries.size())) {
  for (int j = 0; j < cols_; ++j) append_terms(j, entries[at(j)]);
  std::sort(terms_.begin(), terms_.end(), precedes);
}

void polynomial_row::append_terms(int j, const polynomial& f) {
  if (sign(f) == 0) return;
  for (int i = 0; i < f.no_of_monoms(); ++i) terms_.push_back({f.term(i), j, f.coef(i)});
}

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

void polynomial_row::set_entry(int j, const polynomial& f) {
  std::erase_if(terms_, [j](const term& t) { return t.column == j; });
  const auto others = static_cast<std::ptrdiff_t>(terms_.size());
  append_terms(j, f);
  std::inplace_merge(terms_.begin(), terms_.begin() + others, terms_.end(), precedes);
}

void polynomial_row::add_term(int j, const monom& m, Fp8 c) {
  if (c == 0) return;
  const term added{m, j, c};
  const auto place = std::lower_bound(terms_.begin(), terms_.end(), added, precedes);
  if (place == terms_.end() || !same_place(*place, added)) {
    terms_.insert(place, added);
  } else if ((place->c += c) == 0) {
    terms_.erase(place);
  }
}

void polynomial_row::operator*=(Fp8 c) {
  for (term& t : terms_) t.c *= c;
  std::erase_if(terms_, [](const term& t) { return t.c == 0; });
}

// Merges in place: behind the terms that stay where they are, a gap as long as b is opened. The
// merged terms fill it from its front, and never reach those of the row that are still to come.
template <class Shifted>
void polynomial_row::subtract_shifted(Fp8 c, const polynomial_row& b, Shifted shifted) {
  if (c == 0 || b.is_zero()) return;
  const auto gap =
      std::lower_bound(terms_.begin(), terms_.end(), shifted(b.terms_.front()), precedes);
  const auto length = static_cast<std::ptrdiff_t>(b.terms_.size());
  auto merged = terms_.insert(gap, b.terms_.size(), b.terms_.front());
  auto rest = merged + length;
  for (const term& t : b.terms_) {
    term next = shifted(t);
    next.c = -(c * t.c);
    while (rest != terms_.end() && precedes(*rest, next)) *merged++ = *rest++;
    if (rest != terms_.end() && same_place(*rest, next)) next.c += (rest++)->c;
    if (next.c != 0) *merged++ = next;
  }
  terms_.erase(merged, rest);
}

void polynomial_row::subtract(Fp8 c, const polynomial_row& b) {
  if (&b == this) {
    *this *= Fp8(1) - c;
    return;
  }
  subtract_shifted(c, b, [](const term& t) { return t; });
}

void polynomial_row::subtract(Fp8 c, const monom& q, const polynomial_row& b) {
  if (&b == this) {
    subtract(c, q, polynomial_row(b));
    return;
  }
  subtract_shifted(c, b, [&q](term t) {
    t.m *= q;
    return t;
  });
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
  std::vector<int> Lt;
  rows_by_pivot done;
  for (int i = 0; i < static_cast<int>(A.size()); ++i) {
    const polynomial_row& row = A[at(i)];
    reduce_by_earlier_rows(A, i, done);
    if (!row.is_zero()) norm(A, i, row.pivot().column);
    Lt.push_back(row.is_zero() ? -1 : row.pivot().column);
    if (!row.is_zero()) done.emplace(row.pivot(), i);
  }
  return Lt;
}

}  // namespace zep
