// SPDX-License-Identifier: GPL-3.0-or-later
// Relations among generators of a module.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "arith/polynomial.h"
#include "linalg/row.h"
#include "points/module/module_monomials.h"

namespace zep::points {

// A relation, or another element of the free module, without its zeros: the coefficients, none of
// them zero, and the positions, ascending, of their monomials in a list. There may be thousands of
// relations with thousands of terms.
struct relation {
  std::vector<std::uint32_t> position;
  row coef;

  bool operator==(const relation&) const = default;
};

// What a row with all coefficients holds.
relation without_zeros(const_row_view all);

// Relations of one degree: a list of module monomials, in the order of `precedes`, and the
// relations over it.
struct relations_of_degree {
  std::vector<module_monomial> monomials;
  std::vector<relation> relations;

  int count() const { return static_cast<int>(relations.size()); }

  // Calls use(module monomial, coefficient) for the terms of relation j: component by component,
  // each descending.
  template <class Use>
  void for_each_term(int j, Use use) const {
    const relation& terms = relations[j];
    for (std::size_t i = 0; i < terms.coef.size(); ++i) {
      use(monomials[terms.position[i]], terms.coef[i]);
    }
  }
};

// The relations with these entries, a row of entries for each.
relations_of_degree relations_of(const std::vector<std::vector<polynomial>>& rows);

// The entries of relation j at n generators.
std::vector<polynomial> entries_of(const relations_of_degree& R, int j, int n);

}  // namespace zep::points
