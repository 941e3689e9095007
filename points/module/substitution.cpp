// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/substitution.h"

#include <algorithm>
#include <utility>

#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/views.h"

namespace zep::points {

namespace {

// sum[position[q]] += values[q].
void scatter(row_view sum, const std::vector<int>& position, const_row_view values) {
  const int p = Fp8::prime;
  for (std::size_t q = 0; q < values.size(); ++q) {
    const int both = sum[position[q]].value() + values[q].value();
    sum[position[q]] = Fp8(both < p ? both : both - p);
  }
}

}  // namespace

expressions::expressions(std::vector<int> degrees)
    : degrees_(std::move(degrees)), row_(degrees_.size(), -1) {
  const auto largest = std::max_element(degrees_.begin(), degrees_.end());
  if (largest != degrees_.end()) of_degree_.resize(*largest + 1);
}

void expressions::add(int degree, const std::vector<int>& of_candidates,
                      std::vector<module_monomial> monomials, matrix coefs) {
  for (std::size_t i = 0; i < of_candidates.size(); ++i) {
    row_[of_candidates[i]] = static_cast<int>(i);
  }
  of_degree_[degree] = {std::move(monomials), std::move(coefs)};
}

substitution::substitution(const std::vector<module_monomial>& from, const expressions& known)
    : known_(known), places_(from.size()) {
  numbered_monomials numbered;
  // A factor with a degree of candidates instead of a component.
  numbered_monomials factors;
  for (std::size_t k = 0; k < from.size(); ++k) {
    const auto& [factor, candidate] = from[k];
    if (candidate < 0) continue;
    if (!known_.is_eliminated(candidate)) {
      places_[k].position = numbered.number(from[k]);
      continue;
    }
    const int degree = known_.degree(candidate);
    const int g = factors.number({factor, degree});
    if (g == static_cast<int>(groups_.size())) {
      heed_interrupt();
      groups_.push_back({degree, {}, {}, {}});
      for (const module_monomial& t : known_.monomials(degree)) {
        groups_[g].position.push_back(numbered.number({factor * t.m, t.component}));
      }
    }
    places_[k].group = g;
    places_[k].member = static_cast<int>(groups_[g].number.size());
    groups_[g].number.push_back(static_cast<int>(k));
    groups_[g].candidate.push_back(candidate);
  }
  monomials_ = numbered.monomials();
  const std::vector<int> position = sort(monomials_);
  const auto renumber = [&](int& number) { number = number < 0 ? -1 : position[number]; };
  for (place& to : places_) renumber(to.position);
  for (multiples& group : groups_) {
    std::for_each(group.position.begin(), group.position.end(), renumber);
  }
}

void substitution::add(matrix& sums, const matrix& coefs) const {
  std::vector<int> number;
  std::vector<int> position;
  for (int k = 0; k < coefs.cols(); ++k) {
    if (places_[k].position < 0) continue;
    number.push_back(k);
    position.push_back(places_[k].position);
  }
  row values(number.size());
  for (int r = 0; r < coefs.rows(); ++r) {
    heed_interrupt();
    const const_row_view all = coefs[r];
    for (std::size_t i = 0; i < number.size(); ++i) values[i] = all[number[i]];
    scatter(sums[r], position, values);
  }
  for (const multiples& group : groups_) add_products(sums, coefs, group);
}

void substitution::add_monomial(row_view sum, int k) const {
  const auto [position, group, member] = places_[k];
  if (position >= 0) {
    sum[position] += Fp8(1);
  } else if (group >= 0) {
    scatter(sum, groups_[group].position, known_[groups_[group].candidate[member]]);
  }
}

// The multiples have one factor, so first the candidates are replaced and added, in all rows at
// once; the sums are multiplied then.
void substitution::add_products(matrix& sums, const matrix& coefs, const multiples& group) const {
  const auto end = std::lower_bound(group.number.begin(), group.number.end(), coefs.cols());
  const auto n = static_cast<std::size_t>(end - group.number.begin());
  std::vector<const_row_view> expressed;
  for (std::size_t i = 0; i < n; ++i) expressed.push_back(known_[group.candidate[i]]);
  std::vector<int> rows;
  matrix chosen(static_cast<int>(n), coefs.rows());
  for (int r = 0; r < coefs.rows(); ++r) {
    const row_view to = chosen[static_cast<int>(rows.size())];
    bool is_zero = true;
    for (std::size_t i = 0; i < n; ++i) {
      to[i] = coefs[r][group.number[i]];
      is_zero = is_zero && to[i] == 0;
    }
    if (!is_zero) rows.push_back(r);
  }
  if (rows.empty() || group.position.empty()) return;
  matrix products(static_cast<int>(group.position.size()), static_cast<int>(rows.size()));
  add_combinations(views_of(products), chosen, expressed);
  for (int i = 0; i < products.rows(); ++i) {
    heed_interrupt();
    scatter(sums[rows[i]], group.position, products[i]);
  }
}

}  // namespace zep::points
