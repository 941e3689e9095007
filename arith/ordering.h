// SPDX-License-Identifier: GPL-3.0-or-later
// Term orders: plain functions on two monomials, and the order of the ring in force.
//
// In every order the variables rank X > Y > Z > ... . Affine orders look at the first `proj` - 1
// slots, whatever `dim` a monomial has. Projective orders compare affine parts first; only when
// these are equal does the smaller power of the homogenising variable come first.
#pragma once

#include "arith/monom.h"

namespace zep::arith {

using monom_comparison = bool (*)(const monom& a, const monom& b);

bool lex_lt(const monom& a, const monom& b);
bool lex_le(const monom& a, const monom& b);
bool revlex_lt(const monom& a, const monom& b);
bool revlex_le(const monom& a, const monom& b);

bool deglex_lt(const monom& a, const monom& b);
bool deglex_le(const monom& a, const monom& b);
bool degrevlex_lt(const monom& a, const monom& b);
bool degrevlex_le(const monom& a, const monom& b);

bool proj_deglex_lt(const monom& a, const monom& b);
bool proj_deglex_le(const monom& a, const monom& b);
bool proj_degrevlex_lt(const monom& a, const monom& b);
bool proj_degrevlex_le(const monom& a, const monom& b);

// Divisibility, over all slots of a: a divides b.
bool Zn_order_le(const monom& a, const monom& b);

// The comparisons of the order in force.
class order_in_force {
  friend void enforce(const ring& R);

  static void set(term_order order);

  static monom_comparison lt_;
  static monom_comparison le_;
  static monom_comparison proj_lt_;
  static monom_comparison proj_le_;

 public:
  static constexpr const monom_comparison& lt = lt_;
  static constexpr const monom_comparison& le = le_;
  static constexpr const monom_comparison& proj_lt = proj_lt_;
  static constexpr const monom_comparison& proj_le = proj_le_;
};
inline constexpr const monom_comparison& monom_ordering_lt = order_in_force::lt;
inline constexpr const monom_comparison& monom_ordering_le = order_in_force::le;
inline constexpr const monom_comparison& proj_monom_ordering_lt = order_in_force::proj_lt;
inline constexpr const monom_comparison& proj_monom_ordering_le = order_in_force::proj_le;

// Order under the order in force: projective when both monomials are projective.
inline bool both_projective(const monom& a, const monom& b) {
  return a.dim() == proj && b.dim() == a.dim();
}
inline bool operator<(const monom& a, const monom& b) {
  return both_projective(a, b) ? proj_monom_ordering_lt(a, b) : monom_ordering_lt(a, b);
}
inline bool operator>(const monom& a, const monom& b) { return b < a; }
inline bool operator<=(const monom& a, const monom& b) {
  return both_projective(a, b) ? proj_monom_ordering_le(a, b) : monom_ordering_le(a, b);
}
inline bool operator>=(const monom& a, const monom& b) { return b <= a; }

}  // namespace zep::arith
