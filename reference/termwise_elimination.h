// SPDX-License-Identifier: GPL-3.0-or-later
// From the syzygies of all candidate projections to those of a minimal system of generators, term
// by term. The canonical module is computed with rows over numbered module monomials instead.
#pragma once

#include <vector>

#include "linalg/matrix.h"
#include "points/module/dual_module.h"
#include "reference/polynomial_row.h"

namespace zep::reference {

// Syzygies of one degree d in a dual_module, as rows:
//
//     coefs[r][k]               coefficient of border element leading[k]
//     coefs[r][leads + i]       coefficient of X_0^(deg - d) * member i, deg the degree of O[i]
//
// where leads is the number of leading elements.
struct syzygy_matrix {
  int degree;
  std::vector<int> leading;
  matrix coefs;
};

// The syzygies led by the given border elements of W, degrees falling, of one degree in the order
// given: row k of a degree is leading[k] minus its canonical form.
std::vector<syzygy_matrix> syzygy_matrices(const dual_module& W, const std::vector<int>& leading);

// Eliminates candidates that others express: a syzygy with a constant at a candidate does.
class termwise_elimination {
 public:
  // W must outlive it.
  explicit termwise_elimination(const dual_module& W);

  // Takes the syzygies of the next degree, a smaller one each time. Eliminates as many candidates
  // of that degree as their constants have rank, and returns the syzygies that have not been used
  // up by this, each of them free of all eliminated candidates: a column of polynomials in
  // projective monomials over all candidates.
  std::vector<polynomial_row> eliminate(syzygy_matrix S);

  bool is_eliminated(int candidate) const { return eliminated_[candidate]; }

 private:
  int constant_at(const syzygy_matrix& S, int r) const;
  polynomial_row column(const syzygy_matrix& S, int r, int left_out) const;
  void add_multiple(std::vector<polynomial_row::term>& sum, const monom& factor, int candidate,
                    Fp8 c) const;

  const dual_module& W_;
  std::vector<bool> eliminated_;
  // What an eliminated candidate is, by the remaining ones.
  std::vector<polynomial_row> expression_;
};

}  // namespace zep::reference
