#include "points/module/canonical_module.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "base/output.h"
#include "base/reporter.h"
#include "points/module/dual_module.h"
#include "points/module/generator_elimination.h"
#include "points/module/projections.h"
#include "points/module/superfluous_syzygies.h"
#include "points/record/consistency.h"
#include "points/ring/canonical_forms.h"
#include "points/walk/buchberger_moeller.h"
#include "text/vector_text.h"

namespace zep::points {

namespace {

// The countdown runs over all monomials whose canonical forms enter the syzygies. Those of the
// border are enough to have the others by multiplication.
canonical_forms forms_of(const scheme& X, const std::vector<syzygy_monomial>& syzygies) {
  const progress forms("calculating canonical forms ...\n");
  if (verbose != 0) forms.count_down(static_cast<int>(needed_monomials(X, syzygies).size()));
  canonical_forms R(quotient::R, X.O, X.O_index, X.B, X.B_index, *X.Ix);
  forms.end_line();
  report(Line);
  return R;
}

// The border elements that the syzygies lead.
std::vector<int> leading_elements(const scheme& X, const dual_module& W,
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

// The relations' entries at the generators that remain, no_of_pr of them, row by row. The columns
// have entries at all candidates.
std::vector<polynomial> relation_matrix(const generator_elimination& generators,
                                        const std::vector<polynomial_row>& columns,
                                        std::size_t no_of_pr) {
  std::vector<polynomial> A_d;
  A_d.reserve(no_of_pr * columns.size());
  for (std::size_t i = 0; i < no_of_pr; ++i) {
    heed_interrupt();
    A_d.resize(A_d.size() + columns.size());
  }
  for (std::size_t j = 0; j < columns.size(); ++j) {
    heed_interrupt();
    std::vector<polynomial> entries = columns[j].entries();
    std::size_t place = j;
    for (std::size_t a = 0; a < entries.size(); ++a) {
      if (generators.is_eliminated(static_cast<int>(a))) continue;
      A_d[place] = std::move(entries[a]);
      place += columns.size();
    }
  }
  return A_d;
}

// Puts the candidates that remain and the relations into X; coldeg counts these by degree.
void store(scheme& X, const dual_module& W, const generator_elimination& generators,
           const std::vector<polynomial_row>& columns, std::vector<int> coldeg) {
  std::vector<int> pr;
  std::vector<int> pr_deg(std::max(X.sigma + 2, 0));
  for (int a = 0; a < W.no_of_candidates(); ++a) {
    if (generators.is_eliminated(a)) continue;
    pr.push_back(W.candidate(a));
    ++pr_deg[W.degree_of_member(W.candidate(a))];
  }
  std::vector<polynomial> A_d = relation_matrix(generators, columns, pr.size());

  X.pr = std::move(pr);
  X.pr_deg = std::move(pr_deg);
  X.A_d = std::move(A_d);
  X.A_d_cols = static_cast<int>(columns.size());
  X.A_d_maxdeg = static_cast<int>(coldeg.size()) - 1;
  X.A_d_coldeg = std::move(coldeg);
}

// Prints one side of the presentation: the shifted summands with their multiplicities.
class module_text {
 public:
  void add(int multiplicity, int shift) {
    if (multiplicity == 0) return;
    text_ += text_.empty() ? "P" : " + P";
    if (multiplicity != 1) text_ += "^" + std::to_string(multiplicity);
    if (shift != 0) text_ += "(" + std::to_string(shift) + ")";
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace

void omega(scheme& X) {
  need_bu_mo(X);
  const std::vector<int> candidates = candidate_projections(X);
  const std::vector<syzygy_monomial> monomials = syzygy_monomials(X, candidates);
  const canonical_forms R = forms_of(X, monomials);
  const dual_module W(X.O, R, candidates);
  const std::vector<int> leading = leading_elements(X, W, monomials);
  const int n = static_cast<int>(leading.size());
  report(std::to_string(n) + " syzygies among " + std::to_string(candidates.size()) +
         " projections found.\n" + Line);

  const progress rewriting("rewriting syzygies ...\n");
  std::vector<syzygies_of_degree> syzygies = rewritten_syzygies(W, without_superfluous(W, leading));
  rewriting.count_down(n);
  rewriting.end_line();

  const progress eliminating("eliminating syzygies ...\n");
  generator_elimination generators(W);
  std::vector<polynomial_row> columns;
  std::vector<int> coldeg(1);
  for (syzygies_of_degree& S : syzygies) {
    const std::size_t before = columns.size();
    coldeg.resize(W.top_degree() - S.degree + 1);
    std::ranges::move(generators.eliminate(std::move(S)), std::back_inserter(columns));
    coldeg.back() = static_cast<int>(columns.size() - before);
  }
  eliminating.count_down(n);
  eliminating.end_line();

  const progress storing("rewriting syzygies ...\n");
  store(X, W, generators, columns, std::move(coldeg));
  storing.count_down(X.A_d_cols);
  storing.end_line();
  report(Line);
  ensure_consistent(X);
}

void need_omega(scheme& X) {
  if (no_of_pr(X) == 0) omega(X);
}

void disp_omega(std::ostream& out, scheme& X) {
  need_omega(X);
  const int D = X.pr.empty() ? 0 : X.O[X.pr.back()].tot_deg();
  module_text relations;
  for (int e = X.A_d_maxdeg; e >= 0; --e) relations.add(X.A_d_coldeg[e], D - e - 1);
  module_text generators;
  for (int d = 0; d <= X.sigma + 1; ++d) generators.add(X.pr_deg[d], d - 1);
  out << "the minimal homogeneous presentation of the canonical module w_R :\n"
      << relations.text() << " --> " << generators.text() << " --> w_R --> 0\n"
      << Line;
}

void disp_omegamat(std::ostream& out, scheme& X) {
  need_omega(X);
  out << "the coloms of A_" << dim << " :\n";
  for (int j = 0; j < X.A_d_cols; ++j) {
    show_vector(out, no_of_pr(X),
                [&](int i) -> const polynomial& { return entry_of_A_d(X, i, j); });
  }
  out << Line << "w_R is generated by the following projections :\n";
  for (const int i : X.pr) {
    heed_interrupt();
    out << "pr_(" << X.O[i] << ")\n";
  }
  out << Line;
}

}  // namespace zep::points
