#include "points/ring/groebner_basis.h"

#include <utility>

namespace zep::points {

namespace {

// Appends the terms of the row, greatest first.
void append_terms(std::vector<monom>& term, std::vector<Fp8>& coef, std::span<const Fp8> row,
                  const std::vector<monom>& O) {
  for (std::size_t i = row.size(); i-- > 0;) {
    if (row[i] == 0) continue;
    term.push_back(O[i]);
    coef.push_back(row[i]);
  }
}

}  // namespace

polynomial combination(std::span<const Fp8> row, const std::vector<monom>& O) {
  std::vector<monom> term;
  std::vector<Fp8> coef;
  append_terms(term, coef, row, O);
  return {std::move(term), std::move(coef)};
}

int leading_position(std::span<const Fp8> row) {
  for (std::size_t i = row.size(); i-- > 0;) {
    if (row[i] != 0) return static_cast<int>(i);
  }
  return 0;
}

groebner_basis::groebner_basis(std::vector<monom> leads, std::vector<std::vector<Fp8>> tails)
    : leads_(std::move(leads)), tails_(std::move(tails)), index_(leads_) {}

polynomial groebner_basis::gen(int g, const std::vector<monom>& O) const {
  std::vector<monom> term{lead(g)};
  std::vector<Fp8> coef{Fp8(1)};
  append_terms(term, coef, tails_[g], O);
  return {std::move(term), std::move(coef)};
}

}  // namespace zep::points
