// SPDX-License-Identifier: GPL-3.0-or-later
// From the syzygies of all candidate projections to those of a minimal system of generators.
#pragma once

#include <vector>

#include "linalg/matrix.h"
#include "points/module/dual_module.h"
#include "points/module/polynomial_rows.h"

namespace zep::points {

// Syzygies of one degree d in a dual_module, as rows:
//
//     coefs[r][k]               coefficient of border element leading[k]
//     coefs[r][leads + i]       coefficient of X_0^(deg - d) * member i, deg the degree of O[i]
//
// where leads is the number of leading elements.
struct syzygies_of_degree {
  int degree;
  std::vector<int> leading;
  matrix coefs;
};

// The syzygies led by the given border elements of W, degrees falling, of one degree in the order
// given: row k of a degree is leading[k] minus its canonical form.
std::vector<syzygies_of_degree> rewritten_syzygies(const dual_module& W,
                                                   const std::vector<int>& leading);

// Eliminates candidates that others express: a syzygy with a constant at a candidate does.
class generator_elimination {
 public:
  // W must outlive it.
  explicit generator_elimination(const dual_module& W);

  // Takes the syzygies of the next degree, a smaller one each time. Eliminates as many candidates
  // of that degree as their constants have rank, and returns the syzygies that have not been used
  // up by this, each of them free of all eliminated candidates: a column of polynomials in
  // projective monomials over all candidates.
  std::vector<polynomial_row> eliminate(syzygies_of_degree S);

  bool is_eliminated(int candidate) const { return eliminated_[candidate]; }

 private:
  int constant_at(const syzygies_of_degree& S, int r) const;
  polynomial_row column(const syzygies_of_degree& S, int r, int left_out) const;
  void add_multiple(std::vector<polynomial_row::term>& sum, const monom& factor, int candidate,
                    Fp8 c) const;

  const dual_module& W_;
  std::vector<bool> eliminated_;
  // What an eliminated candidate is, by the remaining ones.
  std::vector<polynomial_row> expression_;
};

}  // namespace zep::points
