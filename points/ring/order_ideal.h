// SPDX-License-Identifier: GPL-3.0-or-later
// The order ideal of a set of points, and what the walk that finds it finds with it.
#pragma once

#include <vector>

#include "arith/polynomial.h"
#include "linalg/matrix.h"
#include "points/ring/groebner_basis.h"
#include "points/ring/hilbert.h"
#include "points/ring/monom_index.h"

namespace zep::points {

// Everything that is known of s points once the Buchberger-Moeller algorithm has walked over the
// monomials. What is computed later starts from here.
struct order_ideal {
  // O, one member for each point, and its border B, both ascending; the Groebner basis; a row over
  // O for each point. Repeated points leave monomials 1 at the end of O. In the paranoid build:
  // aborts unless these fit together.
  order_ideal(std::vector<monom> members, std::vector<monom> border, groebner_basis basis,
              matrix separators);

  // Number of points, and of border monomials.
  int s() const { return static_cast<int>(O.size()); }
  int no_of_border() const { return static_cast<int>(B.size()); }

  // The standard monomials and the border, with positions by monomial.
  std::vector<monom> O;
  monom_index O_index;
  std::vector<monom> B;
  monom_index B_index;
  // The reduced Groebner basis of the vanishing ideal I(X).
  groebner_basis Ix;
  // Row i holds, over O, the separator of point i: 1 at point i, 0 at the other points. Repeated
  // points leave rows of zeros.
  matrix separator;
  hilbert_numbers H;
};

// Whether results mean something: there are points, no two of them equal, and the characteristic is
// prime. The other function throws std::invalid_argument, with the reason, unless that is so.
bool is_meaningful(const order_ideal& X);
void require_meaningful(const order_ideal& X);

// The Groebner basis element g, 0 <= g < Ix.no_of_gens().
polynomial groebner_element(const order_ideal& X, int g);

// The separator of point i, 0 <= i < s, and its degree.
polynomial separator_of(const order_ideal& X, int i);
int separator_degree(const order_ideal& X, int i);

// Positions by monomial, -1 for one that is not there: in O, among the leading monomials of the
// Groebner basis, and in the border.
int is_el_OO(const order_ideal& X, const monom& t);
int is_el_G(const order_ideal& X, const monom& t);
int is_el_B(const order_ideal& X, const monom& t);

}  // namespace zep::points
