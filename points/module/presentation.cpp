// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/presentation.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/paranoid.h"

namespace zep::points {

namespace {

int total(const std::vector<int>& counts) {
  return std::accumulate(counts.begin(), counts.end(), 0);
}

std::vector<int> counted_by_degree(const std::vector<monom>& monomials, int top_degree) {
  std::vector<int> counts(std::max(top_degree + 1, 0));
  for (const monom& t : monomials) ++counts[t.tot_deg()];
  return counts;
}

}  // namespace

presentation::presentation(std::vector<int> generators, std::vector<monom> monomials, int s,
                           std::vector<polynomial> entries, std::vector<int> coldeg)
    : pr(std::move(generators)),
      pr_monom(std::move(monomials)),
      pr_deg(counted_by_degree(pr_monom, s + 1)),
      sigma(s),
      A_d_cols(total(coldeg)),
      A_d(std::move(entries)),
      A_d_maxdeg(static_cast<int>(coldeg.size()) - 1),
      A_d_coldeg(std::move(coldeg)) {
  ensure("each generator has a monomial", [&] { return pr.size() == pr_monom.size(); });
  ensure("the generators ascend", [&] { return std::is_sorted(pr.begin(), pr.end()); });
  ensure("there is an entry for each generator and relation",
         [&] { return A_d.size() == pr.size() * A_d_cols; });
}

}  // namespace zep::points
