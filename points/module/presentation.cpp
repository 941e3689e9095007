// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/presentation.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "base/interrupt.h"
#include "base/paranoid.h"

namespace zep::points {

namespace {

std::vector<int> counted_by_degree(const std::vector<monom>& monomials, int top_degree) {
  std::vector<int> counts(std::max(top_degree + 1, 0));
  for (const monom& t : monomials) ++counts[t.tot_deg()];
  return counts;
}

std::vector<int> counts_of(const std::vector<relations_of_degree>& relations) {
  std::vector<int> counts;
  counts.reserve(relations.size());
  for (const relations_of_degree& R : relations) counts.push_back(R.count());
  return counts;
}

// True if the monomials stand in order and belong to the first n generators, and the relations to
// the monomials.
bool is_in_order(const relations_of_degree& R, int n) {
  const auto belongs = [&](const module_monomial& t) {
    return t.component >= 0 && t.component < n;
  };
  const auto fits = [&](const relation& r) {
    return r.position.size() == r.coef.size() &&
           std::is_sorted(r.position.begin(), r.position.end()) &&
           (r.position.empty() || r.position.back() < R.monomials.size());
  };
  return std::all_of(R.monomials.begin(), R.monomials.end(), belongs) &&
         std::is_sorted(R.monomials.begin(), R.monomials.end(), precedes) &&
         std::all_of(R.relations.begin(), R.relations.end(), fits);
}

std::vector<relations_of_degree> by_degree(const std::vector<polynomial>& entries,
                                           const std::vector<int>& coldeg, std::size_t n) {
  const auto cols = static_cast<std::size_t>(std::accumulate(coldeg.begin(), coldeg.end(), 0));
  ensure("there is an entry for each generator and relation",
         [&] { return entries.size() == n * cols; });
  std::vector<relations_of_degree> relations;
  std::size_t j = 0;
  for (const int count : coldeg) {
    std::vector<std::vector<polynomial>> rows(count);
    for (std::vector<polynomial>& of_relation : rows) {
      heed_interrupt();
      for (std::size_t i = 0; i < n; ++i) of_relation.push_back(entries[i * cols + j]);
      ++j;
    }
    relations.push_back(relations_of(rows));
  }
  return relations;
}

}  // namespace

presentation::presentation(std::vector<int> generators, std::vector<monom> monomials, int s,
                           std::vector<relations_of_degree> relations)
    : pr(std::move(generators)),
      pr_monom(std::move(monomials)),
      pr_deg(counted_by_degree(pr_monom, s + 1)),
      sigma(s),
      A_d(std::move(relations)),
      A_d_maxdeg(static_cast<int>(A_d.size()) - 1),
      A_d_coldeg(counts_of(A_d)) {
  A_d_cols = std::accumulate(A_d_coldeg.begin(), A_d_coldeg.end(), 0);
  ensure("each generator has a monomial", [&] { return pr.size() == pr_monom.size(); });
  ensure("the generators ascend", [&] { return std::is_sorted(pr.begin(), pr.end()); });
  ensure("the relations are among the generators, in order", [&] {
    return std::all_of(A_d.begin(), A_d.end(),
                       [&](const relations_of_degree& R) { return is_in_order(R, no_of_pr()); });
  });
}

presentation::presentation(const std::vector<int>& generators, const std::vector<monom>& monomials,
                           int s, const std::vector<polynomial>& entries,
                           const std::vector<int>& coldeg)
    : presentation(generators, monomials, s, by_degree(entries, coldeg, generators.size())) {}

std::vector<polynomial> presentation::column(int j) const {
  auto R = A_d.begin();
  for (; j >= R->count(); ++R) j -= R->count();
  return entries_of(*R, j, no_of_pr());
}

}  // namespace zep::points
