// SPDX-License-Identifier: GPL-3.0-or-later
// Presentations of the canonical module.
#pragma once

#include <cstddef>
#include <vector>

#include "arith/polynomial.h"

namespace zep::points {

// A minimal homogeneous presentation of the canonical module w_R: generators, which are projections
// to monomials of the order ideal O, and relations among them. A generator has the degree of its
// monomial, with a minus sign as an element of w_R.
struct presentation {
  // Nothing: what there is without points.
  presentation() = default;

  // Generators by the positions in O of their monomials, which ascend, with these monomials and
  // with s for sigma; relations by their entries, that of relation j at generator i at i * cols +
  // j, and by their number in each degree. In the paranoid build: aborts unless the counts fit.
  presentation(std::vector<int> generators, std::vector<monom> monomials, int s,
               std::vector<polynomial> entries, std::vector<int> coldeg);

  int no_of_pr() const { return static_cast<int>(pr.size()); }

  // The entry of relation j at generator i.
  const polynomial& entry(int i, int j) const {
    return A_d[static_cast<std::size_t>(i) * A_d_cols + j];
  }

  // The monomials of the generators, ascending, and their positions in O.
  std::vector<int> pr;
  std::vector<monom> pr_monom;
  // Number of generators whose monomial has degree d, for d = 0 .. sigma + 1, and sigma.
  std::vector<int> pr_deg;
  int sigma = 0;
  // The relations' entries, homogeneous in projective monomials. The relations ascend by degree,
  // that of the entry plus what the degree of the monomial of its generator lacks to the largest.
  int A_d_cols = 0;
  std::vector<polynomial> A_d;
  // The largest degree of a relation; number of relations of degree e, for e = 0 .. A_d_maxdeg.
  int A_d_maxdeg = 0;
  std::vector<int> A_d_coldeg;
};

}  // namespace zep::points
