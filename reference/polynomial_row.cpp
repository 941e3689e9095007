// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/polynomial_row.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "arith/ordering.h"
#include "base/interrupt.h"

namespace zep::reference {

namespace {

using term = polynomial_row::term;

bool precedes(const term& a, const term& b) { return monom_ordering_lt(b.m, a.m); }

// The terms column by column, those of a column as they stood.
std::vector<term> by_column(int cols, const std::vector<term>& terms) {
  std::vector<std::size_t> end(cols + 1);
  for (const term& t : terms) ++end[t.column + 1];
  std::partial_sum(end.begin(), end.end(), end.begin());
  std::vector<term> sorted(terms.size());
  for (const term& t : terms) sorted[end[t.column]++] = t;
  return sorted;
}

using position = std::vector<term>::iterator;

position end_of_column(position first, position last) {
  return std::find_if(first, last, [&](const term& t) { return t.column != first->column; });
}

// Puts the sum of terms of one column in front of them; returns its end.
position sum_up(position first, position last) {
  // Terms are mostly made in order, so looking is cheaper than sorting.
  if (!std::is_sorted(first, last, precedes)) std::sort(first, last, precedes);
  auto summed = first;
  while (first != last) {
    term sum = *first++;
    while (first != last && !precedes(sum, *first)) sum.c += (first++)->c;
    if (sum.c != 0) *summed++ = sum;
  }
  return summed;
}

std::vector<term> terms_of(const std::vector<polynomial>& entries) {
  std::vector<term> terms;
  for (int j = 0; j < static_cast<int>(entries.size()); ++j) {
    const polynomial& f = entries[j];
    for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
      terms.push_back({f.term(i), j, f.coef(i)});
    }
  }
  return terms;
}

}  // namespace

polynomial_row::polynomial_row(int cols, const std::vector<term>& terms)
    : cols_(cols), terms_(by_column(cols, terms)) {
  auto kept = terms_.begin();
  for (auto column = terms_.begin(); column != terms_.end();) {
    heed_interrupt();
    const auto end = end_of_column(column, terms_.end());
    kept = std::move(column, sum_up(column, end), kept);
    column = end;
  }
  terms_.erase(kept, terms_.end());
  terms_.shrink_to_fit();
}

polynomial_row::polynomial_row(const std::vector<polynomial>& entries)
    : polynomial_row(static_cast<int>(entries.size()), terms_of(entries)) {}

std::vector<polynomial> polynomial_row::entries() const {
  std::vector<polynomial> entries(cols_);
  for (auto first = terms_.begin(); first != terms_.end();) {
    std::vector<monom> monoms;
    std::vector<Fp8> coefs;
    const int column = first->column;
    for (; first != terms_.end() && first->column == column; ++first) {
      monoms.push_back(first->m);
      coefs.push_back(first->c);
    }
    entries[column] = polynomial(std::move(monoms), std::move(coefs));
  }
  return entries;
}

void polynomial_row::operator*=(Fp8 c) {
  for (term& t : terms_) t.c *= c;
  std::erase_if(terms_, [](const term& t) { return t.c == 0; });
}

}  // namespace zep::reference
