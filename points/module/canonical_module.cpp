// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/canonical_module.h"

#include <string>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "base/output.h"
#include "points/module/dual_module.h"
#include "points/module/generator_elimination.h"
#include "points/module/projections.h"
#include "points/module/superfluous_syzygies.h"
#include "points/ring/canonical_forms.h"

namespace zep::points {

namespace {

// The countdown runs over all monomials whose canonical forms enter the syzygies. Those of the
// border are enough to have the others by multiplication.
canonical_forms forms_of(const order_ideal& X, const std::vector<syzygy_monomial>& syzygies,
                         reporter& to) {
  const progress forms(to, "calculating canonical forms ...\n");
  if (to.is_attentive()) forms.count_down(static_cast<int>(needed_monomials(X, syzygies).size()));
  canonical_forms R(quotient::R, X);
  forms.end_line();
  to.say(Line);
  return R;
}

// The border elements that the syzygies lead.
std::vector<int> leading_elements(const order_ideal& X, const dual_module& W,
                                  const std::vector<syzygy_monomial>& syzygies) {
  std::vector<int> leading;
  leading.reserve(syzygies.size());
  for (const auto& [T, owner] : syzygies) {
    heed_interrupt();
    leading.push_back(W.find(X.O[W.candidate(owner)] / T, owner));
  }
  return leading;
}

std::vector<int> without_superfluous(const dual_module& W, const std::vector<int>& leading) {
  const std::vector<bool> superfluous = superfluous_syzygies(W, leading);
  std::vector<int> kept;
  for (std::size_t i = 0; i < leading.size(); ++i) {
    if (!superfluous[i]) kept.push_back(leading[i]);
  }
  return kept;
}

// The candidates that remain, with the relations among them, by degrees.
presentation presented(const order_ideal& X, const dual_module& W,
                       const generator_elimination& generators,
                       std::vector<relations_of_degree> relations) {
  std::vector<int> pr;
  std::vector<monom> monomials;
  std::vector<int> generator(W.no_of_candidates(), -1);
  for (int a = 0; a < W.no_of_candidates(); ++a) {
    if (generators.is_eliminated(a)) continue;
    generator[a] = static_cast<int>(pr.size());
    pr.push_back(W.candidate(a));
    monomials.push_back(X.O[pr.back()]);
  }
  for (relations_of_degree& R : relations) {
    for (module_monomial& t : R.monomials) t.component = generator[t.component];
  }
  return {std::move(pr), std::move(monomials), X.H.sigma, std::move(relations)};
}

}  // namespace

presentation omega(const order_ideal& X, reporter& to) {
  const std::vector<int> candidates = candidate_projections(X);
  const std::vector<syzygy_monomial> monomials = syzygy_monomials(X, candidates);
  const canonical_forms R = forms_of(X, monomials, to);
  const dual_module W(X.O, R, candidates);
  const std::vector<int> leading = leading_elements(X, W, monomials);
  const int n = static_cast<int>(leading.size());
  to.say(std::to_string(n) + " syzygies among " + std::to_string(candidates.size()) +
         " projections found.\n");
  to.say(Line);

  const progress rewriting(to, "rewriting syzygies ...\n");
  const std::vector<syzygies_of_degree> syzygies =
      rewritten_syzygies(W, without_superfluous(W, leading));
  rewriting.count_down(n);
  rewriting.end_line();

  const progress eliminating(to, "eliminating syzygies ...\n");
  generator_elimination generators(W);
  std::vector<relations_of_degree> relations(1);
  for (const syzygies_of_degree& S : syzygies) {
    relations.resize(W.top_degree() - S.degree + 1);
    relations.back() = generators.eliminate(S);
  }
  eliminating.count_down(n);
  eliminating.end_line();

  const progress storing(to, "rewriting syzygies ...\n");
  presentation result = presented(X, W, generators, std::move(relations));
  storing.count_down(result.A_d_cols);
  storing.end_line();
  to.say(Line);
  return result;
}

}  // namespace zep::points
