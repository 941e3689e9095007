// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/groebner_basis.h"

#include <utility>

namespace zep::points {

namespace {

// Appends the terms of the sum, greatest first.
void append_terms(std::vector<monom>& term, std::vector<Fp8>& coef, const_row_view coefs,
                  const std::vector<monom>& O) {
  for (std::size_t i = coefs.size(); i-- > 0;) {
    if (coefs[i] == 0) continue;
    term.push_back(O[i]);
    coef.push_back(coefs[i]);
  }
}

}  // namespace

polynomial combination(const_row_view coefs, const std::vector<monom>& O) {
  std::vector<monom> term;
  std::vector<Fp8> coef;
  append_terms(term, coef, coefs, O);
  return {std::move(term), std::move(coef)};
}

int leading_position(const_row_view coefs) {
  for (std::size_t i = coefs.size(); i-- > 0;) {
    if (coefs[i] != 0) return static_cast<int>(i);
  }
  return 0;
}

groebner_basis::groebner_basis(std::vector<monom> leads, std::vector<row> tails)
    : leads_(std::move(leads)), tails_(std::move(tails)), index_(leads_) {}

polynomial groebner_basis::gen(int g, const std::vector<monom>& O) const {
  std::vector<monom> term{lead(g)};
  std::vector<Fp8> coef{Fp8(1)};
  append_terms(term, coef, tails_[g], O);
  return {std::move(term), std::move(coef)};
}

}  // namespace zep::points
