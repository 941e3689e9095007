// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/form_vectors.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <utility>

#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/interrupt.h"

namespace zep::points {

namespace {

using monom_numbers = std::unordered_map<monom, std::uint32_t, monom_hash, std::equal_to<>>;

// The monomials of the forms with their numbers.
monom_numbers numbered_monomials(const std::vector<std::vector<polynomial>>& components,
                                 std::vector<monom>& monomials) {
  monom_numbers numbers;
  for (const std::vector<polynomial>& vector : components) {
    heed_interrupt();
    for (const polynomial& f : vector) {
      for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
        if (numbers.emplace(f.term(i), 0).second) monomials.push_back(f.term(i));
      }
    }
  }
  std::sort(monomials.begin(), monomials.end(),
            [](const monom& a, const monom& b) { return a > b; });
  std::uint32_t next = 0;
  for (const monom& m : monomials) numbers.at(m) = next++;
  return numbers;
}

}  // namespace

form_vectors::form_vectors(std::vector<monom> monomials, int rank, std::vector<compact_row> vectors)
    : monomials_(std::move(monomials)), rank_(rank), vectors_(std::move(vectors)) {}

int form_vectors::no_of_nonzero() const {
  return static_cast<int>(std::count_if(vectors_.begin(), vectors_.end(),
                                        [](const compact_row& v) { return !v.is_zero(); }));
}

void form_vectors::drop_zero_vectors() {
  std::erase_if(vectors_, [](const compact_row& v) { return v.is_zero(); });
}

int form_vectors::position(int i) const {
  const compact_row& v = vector(i);
  return v.is_zero() ? -1 : static_cast<int>(v.pivot() % rank_);
}

const monom& form_vectors::leading_monomial(int i) const {
  return monomials_[vector(i).pivot() / rank_];
}

std::vector<polynomial> form_vectors::components(int i) const {
  std::vector<std::vector<monom>> terms(rank_);
  std::vector<std::vector<Fp8>> coefs(rank_);
  vector(i).for_each([&](std::size_t place, Fp8 c) {
    terms[place % rank_].push_back(monomials_[place / rank_]);
    coefs[place % rank_].push_back(c);
  });
  std::vector<polynomial> result;
  result.reserve(rank_);
  for (int k = 0; k < rank_; ++k) {
    result.emplace_back(std::move(terms[k]), std::move(coefs[k]));
  }
  return result;
}

std::vector<monom> projective_variables() {
  std::vector<monom> variables;
  variables.reserve(proj);
  for (int v = 0; v < proj; ++v) variables.push_back(projective_variable(v));
  return variables;
}

form_vectors vectors_of(std::vector<std::vector<polynomial>> components, int rank) {
  std::vector<monom> monomials;
  const monom_numbers numbers = numbered_monomials(components, monomials);
  std::vector<compact_row> vectors;
  vectors.reserve(components.size());
  row all(monomials.size() * rank);
  for (std::vector<polynomial>& vector : components) {
    heed_interrupt();
    std::fill(all.begin(), all.end(), Fp8(0));
    for (int k = 0; k < rank; ++k) {
      const polynomial& f = vector[k];
      for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
        all[static_cast<std::size_t>(numbers.at(f.term(i))) * rank + k] = f.coef(i);
      }
    }
    vectors.emplace_back(all);
    vector = {};
  }
  return {std::move(monomials), rank, std::move(vectors)};
}

}  // namespace zep::points
