// SPDX-License-Identifier: GPL-3.0-or-later
// Vectors of polynomials, the matter of linear strands.
#pragma once

#include <cstddef>
#include <vector>

#include "arith/polynomial.h"
#include "linalg/compact_row.h"

namespace zep::points {

// Vectors in a free module. Terms are ordered by monomial, the greatest first, then by position, so
// that the first term of a vector leads its greatest component, the first such component of
// several. With the monomials numbered from the greatest on, a vector is a row of coefficients:
//
//     place   number of the monomial * rank + position
class form_vectors {
 public:
  // Vectors of length `rank` over the given monomials, descending.
  form_vectors(std::vector<monom> monomials, int rank, std::vector<compact_row> vectors);

  // Number of positions.
  int rank() const { return rank_; }
  // Number of vectors, zero ones included, and of the others.
  int count() const { return static_cast<int>(vectors_.size()); }
  int no_of_nonzero() const;

  const std::vector<monom>& monomials() const { return monomials_; }
  const compact_row& vector(int i) const { return vectors_[i]; }

  // Position of the first term of vector i, -1 for a zero vector; its monomial, if there is one.
  int position(int i) const;
  const monom& leading_monomial(int i) const;

  // Length of the rows.
  std::size_t width() const { return monomials_.size() * rank_; }

  // Makes the vectors triangular: no two have the same first term then, and its coefficient is 1.
  void interreduce() { triangulate(vectors_, width()); }

  void drop_zero_vectors();

  // The components of vector i.
  std::vector<polynomial> components(int i) const;

 private:
  std::vector<monom> monomials_;
  int rank_;
  std::vector<compact_row> vectors_;
};

// The variables of the ring as projective monomials, descending: the monomials of linear forms.
std::vector<monom> projective_variables();

// The vectors with these components, `rank` each. The components are given up one by one on the
// way: there may be millions.
form_vectors vectors_of(std::vector<std::vector<polynomial>> components, int rank);

}  // namespace zep::points
