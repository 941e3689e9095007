// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/dual_module.h"

#include <algorithm>
#include <utility>

#include "arith/ordering.h"
#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::points {

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
  for (int i = no_of_members() - 1; i >= 0; --i) {
    heed_interrupt();
    set_row(i);
    extend(i);
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
      multiply(rows_[i], position, v, no_of_members());
      return;
    }
  }
  rows_[i][i] = 1;
}

// The values of member i at the border monomials of O follow from those.
void dual_module::extend(int i) {
  const std::size_t first = begin(degree_of_member(i));
  const row_view values = rows_[i];
  for (int b = 0; b < R_.no_of_border(); ++b) {
    const const_row_view form = R_.form(b);
    if (form.size() <= first) continue;
    values[no_of_members() + b] =
        dot(values.subspan(first, form.size() - first), form.subspan(first));
  }
}

// Sets a row to the values of x_v * member i at the first so many members of O.
void dual_module::multiply(row_view to, int i, int v, int members) const {
  const const_row_view values = rows_[i];
  const std::vector<int>& place = place_[v];
  for (int j = begin(degree_of_member(i) - 1); j < members; ++j) to[j] = values[place[j]];
}

monom dual_module::factor(int i) const { return O_[candidate(owner(i))] / O_[i]; }

int dual_module::find(const monom& exponent, int owner) const {
  const auto found = border_index_.find({exponent, owner});
  return found == border_index_.end() ? -1 : found->second;
}

// Member i is its projection and projections behind it.
row dual_module::canonical_form(int b, int members) const {
  heed_interrupt();
  row form(members);
  multiply(form, border(b).member, border(b).variable, members);
  for (int i = begin(degree(b)); i < members; ++i) {
    const std::size_t behind = i + 1;
    axpy(row_view(form).subspan(behind), rows_[i].subspan(behind, members - behind), -form[i]);
  }
  return form;
}

}  // namespace zep::points
