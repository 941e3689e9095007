// SPDX-License-Identifier: GPL-3.0-or-later
// From the syzygies of all candidate projections to those of a minimal system of generators.
#pragma once

#include <vector>

#include "linalg/matrix.h"
#include "points/module/dual_module.h"
#include "points/module/relations.h"
#include "points/module/substitution.h"

namespace zep::points {

// Syzygies of one degree d in a dual_module: syzygy r is border element leading[r] minus its
// canonical form, and
//
//     forms[r][i]   is the coefficient there of X_0^(deg - d) * member begin(d) + i, deg its degree
struct syzygies_of_degree {
  int degree;
  std::vector<int> leading;
  matrix forms;
};

// The syzygies led by the given border elements of W, degrees falling, of one degree in the order
// given.
std::vector<syzygies_of_degree> rewritten_syzygies(const dual_module& W,
                                                   const std::vector<int>& leading);

// Eliminates candidates that others express: a syzygy with a constant at a candidate does.
class generator_elimination {
 public:
  // W must outlive it.
  explicit generator_elimination(const dual_module& W);

  // Takes the syzygies of the next degree, a smaller one each time. Eliminates as many candidates
  // of that degree as their constants have rank, and returns the syzygies that have not been used
  // up by this, each of them free of all eliminated candidates: over projective monomials, with a
  // component for each candidate.
  relations_of_degree eliminate(const syzygies_of_degree& S);

  bool is_eliminated(int candidate) const { return expressions_.is_eliminated(candidate); }

 private:
  const dual_module& W_;
  expressions expressions_;
};

}  // namespace zep::points
