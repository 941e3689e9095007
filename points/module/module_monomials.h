// SPDX-License-Identifier: GPL-3.0-or-later
// Monomials of a free module, and numbers for them.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "arith/monom.h"

namespace zep::points {

// m times member `component` of the basis. Those that meet are homogeneous of one degree, so that
// the affine parts of m tell them apart in a component.
struct module_monomial {
  monom m;
  int component = 0;
};

// Whether a stands before b in a list: by components, and in a component from the greatest monomial
// of the order in force down, as in a polynomial. Looks at affine parts only.
bool precedes(const module_monomial& a, const module_monomial& b);

// Sorts the monomials, which are distinct. Returns the new positions by the old ones.
std::vector<int> sort(std::vector<module_monomial>& monomials);

// Numbers module monomials 0, 1, ... as they come.
class numbered_monomials {
 public:
  // The number of t, the next one if t is new.
  int number(const module_monomial& t);

  // The monomials by their numbers.
  const std::vector<module_monomial>& monomials() const { return monomials_; }

 private:
  struct hash {
    std::size_t operator()(const module_monomial& t) const;
  };
  struct equal {
    bool operator()(const module_monomial& a, const module_monomial& b) const;
  };

  std::vector<module_monomial> monomials_;
  std::unordered_map<module_monomial, int, hash, equal> number_;
};

}  // namespace zep::points
