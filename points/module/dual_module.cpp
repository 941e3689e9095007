// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/dual_module.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

#include "arith/ordering.h"
#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"

namespace zep::points {

namespace {

// So many members are replaced at once, so that the rest is a product of matrices; fewer members,
// or elements, than this are not worth it.
constexpr std::size_t members_at_once = 32;
constexpr int few = 16;

}  // namespace

std::size_t dual_module::key_hash::operator()(const key& k) const {
  return monom_hash()(k.exponent) + static_cast<std::size_t>(k.owner);
}

bool dual_module::key_equal::operator()(const key& a, const key& b) const {
  return a.owner == b.owner && aff_eq(a.exponent, b.exponent);
}

dual_module::dual_module(const std::vector<monom>& O, const canonical_forms& R,
                         std::vector<int> candidates)
    : O_(O),
      R_(R),
      candidates_(std::move(candidates)),
      dim_(dim),
      rows_(R.no_of_members() + R.no_of_border(), R.no_of_members()) {
  set_owners();
  set_products();
  set_border();
  set_places();
  const matrix forms = transposed_forms();
  for (int d = top_degree(); d >= 0; --d) {
    for (int i = begin(d); i < begin(d + 1); ++i) set_row(i);
    extend(d, forms);
  }
}

// What O[i] * x_v divides, O[i] divides too.
void dual_module::set_owners() {
  owner_.assign(no_of_members(), -1);
  for (int a = 0; a < no_of_candidates(); ++a) owner_[candidate(a)] = a;
  for (int i = no_of_members() - 1; i >= 0; --i) {
    for (int v = 0; v < dim_; ++v) {
      const auto [in_O, position] = R_.times(i, v);
      if (in_O) owner_[i] = std::max(owner_[i], owner_[position]);
    }
  }
}

// Division in O is multiplication here; it stays among the members as long as the owner does.
void dual_module::set_products() {
  products_.assign(owner_.size() * dim_, {false, -1});
  for (int i = 0; i < no_of_members(); ++i) {
    for (int v = 0; v < dim_; ++v) {
      const auto [in_O, position] = R_.times(i, v);
      if (in_O && owner(position) == owner(i)) {
        products_[position * dim_ + v] = {true, i};
      }
    }
  }
}

void dual_module::set_border() {
  for (int i = 0; i < no_of_members(); ++i) {
    heed_interrupt();
    for (int v = 0; v < dim_; ++v) {
      if (times(i, v).is_member) continue;
      const monom exponent = O_[i] / variable(v);
      if (border_index_.emplace(key{exponent, owner(i)}, 0).second) {
        border_.push_back({exponent, owner(i), i, v});
      }
    }
  }
  std::sort(border_.begin(), border_.end(), [](const border_element& a, const border_element& b) {
    return aff_eq(a.exponent, b.exponent) ? a.owner > b.owner : a.exponent > b.exponent;
  });
  for (int b = 0; b < no_of_border(); ++b) {
    heed_interrupt();
    border_index_[{border(b).exponent, border(b).owner}] = b;
  }
  for (int i = 0; i < no_of_members(); ++i) {
    heed_interrupt();
    for (int v = 0; v < dim_; ++v) {
      product& p = products_[i * dim_ + v];
      if (!p.is_member) p.position = find(O_[i] / variable(v), owner(i));
    }
  }
}

void dual_module::set_places() {
  place_.assign(dim_, std::vector<int>(no_of_members()));
  for (int j = 0; j < no_of_members(); ++j) {
    for (int v = 0; v < dim_; ++v) {
      const auto [in_O, position] = R_.times(j, v);
      place_[v][j] = in_O ? position : no_of_members() + position;
    }
  }
}

// The values of member i at the members of O.
void dual_module::set_row(int i) {
  for (int v = 0; v < dim_; ++v) {
    const auto [in_O, position] = R_.times(i, v);
    if (in_O && owner(position) == owner(i)) {
      const int first = begin(degree_of_member(i));
      multiply(rows_[i].subspan(first), position, v, first, no_of_members());
      return;
    }
  }
  rows_[i][i] = 1;
}

// Row j has the coefficients of O[j] in the canonical forms of the border monomials of O.
matrix dual_module::transposed_forms() const {
  matrix forms(R_.no_of_border(), no_of_members());
  for (int b = 0; b < R_.no_of_border(); ++b) {
    heed_interrupt();
    const const_row_view form = R_.form(b);
    for (int j = 0; j < std::ssize(form); ++j) forms[j][b] = form[j];
  }
  return forms;
}

// The values of the members of degree d at the border monomials of O follow from those at members:
// a candidate, a projection, takes coefficients from the canonical forms, others combine them.
void dual_module::extend(int d, const matrix& forms) {
  const int first = begin(d);
  int border = 0;
  while (border < R_.no_of_border() && std::ssize(R_.form(border)) <= first) ++border;
  std::vector<int> members;
  for (int i = first; i < begin(d + 1); ++i) {
    heed_interrupt();
    const const_row_view coefs = forms[i].subspan(border);
    if (candidate(owner(i)) == i) {
      std::copy(coefs.begin(), coefs.end(), values_at_border(i).begin() + border);
    } else {
      members.push_back(i);
    }
  }
  matrix values(no_of_members() - first, static_cast<int>(members.size()));
  std::vector<row_view> at_border;
  for (int k = 0; k < values.rows(); ++k) {
    const const_row_view all = const_row_view(rows_[members[k]]).first(no_of_members());
    std::copy(all.begin() + first, all.end(), values[k].begin());
    at_border.push_back(values_at_border(members[k]).subspan(border));
  }
  std::vector<const_row_view> coefs;
  for (int j = first; j < no_of_members(); ++j) coefs.push_back(forms[j].subspan(border));
  if (!members.empty()) add_combinations(at_border, values, coefs);
}

// Sets a row to the values of x_v * member i at the members of O from `first` up to `end`.
void dual_module::multiply(row_view to, int i, int v, int first, int end) const {
  const const_row_view values = rows_[i];
  const std::vector<int>& place = place_[v];
  for (int j = first; j < end; ++j) to[j - first] = values[place[j]];
}

monom dual_module::factor(int i) const { return O_[candidate(owner(i))] / O_[i]; }

int dual_module::find(const monom& exponent, int owner) const {
  const auto found = border_index_.find({exponent, owner});
  return found == border_index_.end() ? -1 : found->second;
}

matrix dual_module::canonical_forms_of(const std::vector<int>& elements, int d, int end) const {
  const int first = begin(d);
  matrix forms(end - first, static_cast<int>(elements.size()));
  for (int r = 0; r < forms.rows(); ++r) {
    heed_interrupt();
    const border_element& b = border(elements[r]);
    multiply(forms[r], b.member, b.variable, first, end);
  }
  from_projections_to_members(forms, first, end);
  return forms;
}

// Member i is its projection and projections behind it, so what stands with a projection becomes
// the coefficient of the member, once it is freed of what members before bring. Candidates are
// projections.
void dual_module::from_projections_to_members(matrix& elements, int first, int end) const {
  std::vector<int> members;
  for (int i = first; i < end; ++i) {
    if (candidate(owner(i)) != i) members.push_back(i);
  }
  const bool at_once = elements.rows() < few || std::ssize(members) < few;
  const std::size_t length = at_once ? members.size() : members_at_once;
  for (std::size_t k = 0; k < members.size(); k += length) {
    const auto some = std::span(members).subspan(k, std::min(length, members.size() - k));
    replace(elements, first, some, k + length < members.size() ? some.back() + 1 : end);
  }
}

// Replaces the projections of some members; what they bring at members from `behind` on is
// subtracted in all elements at once.
void dual_module::replace(matrix& elements, int first, std::span<const int> members,
                          int behind) const {
  matrix subtracted(static_cast<int>(members.size()), elements.rows());
  std::vector<row_view> rest;
  for (int r = 0; r < elements.rows(); ++r) {
    heed_interrupt();
    const row_view element = elements[r];
    for (std::size_t j = 0; j < members.size(); ++j) {
      const int i = members[j];
      const std::size_t length = behind - i - 1;
      const Fp8 c = -element[i - first];
      subtracted[r][j] = c;
      axpy(element.subspan(i + 1 - first, length), rows_[i].subspan(i + 1, length), c);
    }
    rest.push_back(element.subspan(behind - first));
  }
  if (rest.empty() || rest.front().empty()) return;
  std::vector<const_row_view> projections;
  projections.reserve(members.size());
  for (const int i : members) {
    projections.push_back(rows_[i].subspan(behind, rest.front().size()));
  }
  add_combinations(rest, subtracted, projections);
}

}  // namespace zep::points
