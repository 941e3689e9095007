// SPDX-License-Identifier: GPL-3.0-or-later
// The projections that generate the canonical module, and the monomials of their syzygies.
//
// R is free over K[X_0] with the basis O. The canonical module w_R is its dual over K[X_0], with
// the dual basis: the projection pr_t, t in O, takes the coefficient of t. Since w * pr_(wt) is
// pr_t and more, the projections to maximal monomials of O generate w_R; they are the candidates.
#pragma once

#include <vector>

#include "points/ring/order_ideal.h"

namespace zep::points {

// The positions in O of its maximal monomials (no product with a variable is in O), ascending.
std::vector<int> candidate_projections(const order_ideal& X);

// T * pr_(t_a) is a combination of other multiples of candidates: a syzygy with T at candidate a,
// the owner. The owner is an index of the list of candidates.
struct syzygy_monomial {
  monom T;
  int owner = 0;
};

// The monomials of a system of syzygies, the leading ones of a Groebner basis: for candidates
// a < b the monomial t_a / gcd(t_a, t_b) of a (both projections become that to the gcd), then for
// each candidate the pure powers that just don't divide t_a (they kill pr_(t_a) modulo X_0). Only
// those stay that no other of the same owner divides; of equal ones the last stays.
std::vector<syzygy_monomial> syzygy_monomials(const order_ideal& X,
                                              const std::vector<int>& candidates);

// The monomials outside O whose canonical forms enter the syzygies, ascending: products of two
// members of O, and products T * t of syzygy monomials outside O with members.
std::vector<monom> needed_monomials(const order_ideal& X,
                                    const std::vector<syzygy_monomial>& syzygies);

}  // namespace zep::points
