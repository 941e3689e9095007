// SPDX-License-Identifier: GPL-3.0-or-later
// Presentations of the canonical module.
#pragma once

#include <utility>
#include <vector>

#include "arith/polynomial.h"
#include "points/module/relations.h"

namespace zep::points {

// A minimal homogeneous presentation of the canonical module w_R: generators, which are projections
// to monomials of the order ideal O, and relations among them. A generator has the degree of its
// monomial, with a minus sign as an element of w_R.
struct presentation {
  // Nothing: what there is without points.
  presentation() = default;

  // Generators by the positions in O of their monomials, which ascend, with these monomials and
  // with s for sigma; relations by their degrees 0, 1, ... . In the paranoid build: aborts unless
  // they fit.
  presentation(std::vector<int> generators, std::vector<monom> monomials, int s,
               std::vector<relations_of_degree> relations);

  // The same with relations by their entries, that of relation j at generator i at i * (number of
  // relations) + j, and by their number in each degree. In the paranoid build: aborts unless the
  // counts fit.
  presentation(const std::vector<int>& generators, const std::vector<monom>& monomials, int s,
               const std::vector<polynomial>& entries, const std::vector<int>& coldeg);

  int no_of_pr() const { return static_cast<int>(pr.size()); }

  // The entries of relation j, 0 <= j < A_d_cols, at all generators. Made each time.
  std::vector<polynomial> column(int j) const;

  // The entry of relation j at generator i. Goes through the whole relation.
  polynomial entry(int i, int j) const { return column(j)[i]; }

  // The monomials of the generators, ascending, and their positions in O.
  std::vector<int> pr;
  std::vector<monom> pr_monom;
  // Number of generators whose monomial has degree d, for d = 0 .. sigma + 1, and sigma.
  std::vector<int> pr_deg;
  int sigma = 0;
  // The relations by degree, with projective monomials; a component is a generator. The degree is
  // that of an entry plus what the degree of the monomial of its generator lacks to the largest.
  // Relations are counted through all degrees.
  int A_d_cols = 0;
  std::vector<relations_of_degree> A_d;
  // The largest degree of a relation; number of relations of degree e, for e = 0 .. A_d_maxdeg.
  int A_d_maxdeg = 0;
  std::vector<int> A_d_coldeg;
};

}  // namespace zep::points
