// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/generator_elimination.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "linalg/row_operations.h"
#include "linalg/row_space.h"

namespace zep::points {

namespace {

// So many rows are worked on at once: enough for products of matrices, while rows with all their
// zeros take little memory.
constexpr int rows_at_once = 256;

std::vector<int> degrees_of_candidates(const dual_module& W) {
  std::vector<int> degrees;
  degrees.reserve(W.no_of_candidates());
  for (int a = 0; a < W.no_of_candidates(); ++a) {
    degrees.push_back(W.degree_of_member(W.candidate(a)));
  }
  return degrees;
}

// factor * candidate as an element of degree d.
module_monomial projective_multiple(const dual_module& W, monom factor, int candidate, int d) {
  const int degree = W.degree_of_member(W.candidate(candidate)) - d - factor.tot_deg();
  prj(factor);
  factor.set_exp(proj - 1, degree);
  return {factor, candidate};
}

module_monomial leading_monomial(const dual_module& W, int b) {
  const auto& [exponent, owner, member, v] = W.border(b);
  return projective_multiple(W, W.factor(member) * variable(v), owner, W.degree(b));
}

// The syzygies of one degree in rows with the columns
//
//     candidates of this degree | leading elements of pivots | the other members
//
// The pivots are syzygies with independent constants; the others can be freed of constants by them,
// which leaves their own leading elements alone.
class syzygy_rows {
 public:
  // Both must outlive it.
  syzygy_rows(const dual_module& W, const syzygies_of_degree& S)
      : W_(W), S_(S), constants_(columns_of_candidates()), rest_(columns_of_other_members()) {
    choose_pivots();
    pivots_space_ = row_space(no_of_constants(), width() - no_of_constants());
    std::vector<row> rows(pivots_.size(), row(width()));
    for (std::size_t i = 0; i < pivots_.size(); ++i) {
      fill(rows[i], pivots_[i]);
      rows[i][constants_.size() + i] = 1;
    }
    pivots_space_.add_rows(std::move(rows));
  }

  int no_of_others() const { return static_cast<int>(others_.size()); }

  // What the columns stand for, but for candidates that pivots eliminate and for columns of zeros;
  // behind them the leading elements of the others.
  std::vector<module_monomial> monomials() const {
    const std::vector<bool> occurs = columns_that_occur();
    const module_monomial none{monom(), -1};
    std::vector<module_monomial> all;
    const auto add_member = [&](int i) {
      const int member = W_.begin(S_.degree) + i;
      all.push_back(occurs[i]
                        ? projective_multiple(W_, W_.factor(member), W_.owner(member), S_.degree)
                        : none);
    };
    std::for_each(constants_.begin(), constants_.end(), add_member);
    for (const std::size_t pivot : pivots_space_.pivots()) all[pivot] = none;
    for (const int r : pivots_) all.push_back(leading_monomial(W_, S_.leading[r]));
    std::for_each(rest_.begin(), rest_.end(), add_member);
    for (const int r : others_) all.push_back(leading_monomial(W_, S_.leading[r]));
    return all;
  }

  // The place of the leading element of one of the others among the monomials.
  int place_of_leading(int other) const { return width() + other; }

  // The candidates that pivots eliminate.
  std::vector<int> eliminated() const {
    std::vector<int> candidates;
    for (const std::size_t pivot : pivots_space_.pivots()) {
      candidates.push_back(W_.owner(W_.begin(S_.degree) + constants_[pivot]));
    }
    return candidates;
  }

  // What these candidates are, row by row; what stands at themselves does not matter.
  matrix expressions() const {
    const std::vector<row> rows = pivots_space_.reduced();
    matrix negatives(width(), static_cast<int>(rows.size()));
    for (int i = 0; i < negatives.rows(); ++i) axpy(negatives[i], rows[i], -Fp8(1));
    return negatives;
  }

  // So many of the others from `first` on, freed of constants, without their leading elements.
  matrix reduced(int first, int count) const {
    matrix rows(width(), count);
    std::vector<row_view> views;
    for (int i = 0; i < count; ++i) {
      fill(rows[i], others_[first + i]);
      views.push_back(rows[i]);
    }
    pivots_space_.reduce(views);
    return rows;
  }

 private:
  int no_of_constants() const { return static_cast<int>(constants_.size()); }
  int width() const { return static_cast<int>(constants_.size() + pivots_.size() + rest_.size()); }

  std::vector<int> columns_of_candidates() const {
    std::vector<int> columns;
    for (int a = 0; a < W_.no_of_candidates(); ++a) {
      const int i = W_.candidate(a) - W_.begin(S_.degree);
      if (i >= 0 && i < W_.dimension(S_.degree)) columns.push_back(i);
    }
    return columns;
  }

  std::vector<int> columns_of_other_members() const {
    std::vector<int> all = identity_order(S_.forms.cols());
    std::vector<int> columns;
    std::set_difference(all.begin(), all.end(), constants_.begin(), constants_.end(),
                        std::back_inserter(columns));
    return columns;
  }

  void choose_pivots() {
    std::vector<row> constants(S_.forms.rows(), row(constants_.size()));
    for (int r = 0; r < S_.forms.rows(); ++r) {
      for (std::size_t k = 0; k < constants_.size(); ++k) {
        constants[r][k] = -S_.forms[r][constants_[k]];
      }
    }
    const std::vector<bool> is_pivot = row_space(no_of_constants()).add_rows(std::move(constants));
    for (int r = 0; r < S_.forms.rows(); ++r) (is_pivot[r] ? pivots_ : others_).push_back(r);
  }

  // Sets a row of zeros to syzygy r without its leading element.
  void fill(row_view to, int r) const {
    heed_interrupt();
    const const_row_view form = S_.forms[r];
    for (std::size_t k = 0; k < constants_.size(); ++k) to[k] = -form[constants_[k]];
    const row_view behind = to.subspan(constants_.size() + pivots_.size());
    for (std::size_t k = 0; k < rest_.size(); ++k) behind[k] = -form[rest_[k]];
  }

  std::vector<bool> columns_that_occur() const {
    std::vector<std::uint8_t> any(S_.forms.cols());
    for (int r = 0; r < S_.forms.rows(); ++r) {
      heed_interrupt();
      const const_row_view form = S_.forms[r];
      for (std::size_t i = 0; i < any.size(); ++i) any[i] |= form[i].value();
    }
    return {any.begin(), any.end()};
  }

  const dual_module& W_;
  const syzygies_of_degree& S_;
  // The members of a row without the leading elements, as columns of the forms.
  std::vector<int> constants_;
  std::vector<int> rest_;
  std::vector<int> pivots_;
  std::vector<int> others_;
  row_space pivots_space_{0};
};

}  // namespace

std::vector<syzygies_of_degree> rewritten_syzygies(const dual_module& W,
                                                   const std::vector<int>& leading) {
  std::vector<syzygies_of_degree> all;
  for (int d = W.top_degree(); d >= -1; --d) {
    std::vector<int> of_degree;
    std::copy_if(leading.begin(), leading.end(), std::back_inserter(of_degree),
                 [&](int b) { return W.degree(b) == d; });
    if (of_degree.empty()) continue;
    matrix forms = W.canonical_forms_of(of_degree, d, W.no_of_members());
    all.push_back({d, std::move(of_degree), std::move(forms)});
  }
  return all;
}

generator_elimination::generator_elimination(const dual_module& W)
    : W_(W), expressions_(degrees_of_candidates(W)) {}

relations_of_degree generator_elimination::eliminate(const syzygies_of_degree& S) {
  const syzygy_rows rows(W_, S);
  const substitution eliminated(rows.monomials(), expressions_);
  const int width = static_cast<int>(eliminated.monomials().size());
  relations_of_degree result{eliminated.monomials(), {}};
  result.relations.reserve(rows.no_of_others());
  for (int first = 0; first < rows.no_of_others(); first += rows_at_once) {
    const int count = std::min(rows_at_once, rows.no_of_others() - first);
    matrix sums(width, count);
    eliminated.add(sums, rows.reduced(first, count));
    for (int i = 0; i < count; ++i) {
      heed_interrupt();
      eliminated.add_monomial(sums[i], rows.place_of_leading(first + i));
      result.relations.push_back(without_zeros(sums[i]));
    }
  }
  if (const std::vector<int> candidates = rows.eliminated(); !candidates.empty()) {
    matrix sums(width, static_cast<int>(candidates.size()));
    eliminated.add(sums, rows.expressions());
    expressions_.add(S.degree, candidates, eliminated.monomials(), std::move(sums));
  }
  return result;
}

}  // namespace zep::points
