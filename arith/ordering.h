// Term orders. Plain functions on two monomials, reached through four global pointers, so that one
// command switches the order of the whole system.
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

// Divisibility, over all slots of a: a properly divides b; a divides b.
bool Zn_order_lt(const monom& a, const monom& b);
bool Zn_order_le(const monom& a, const monom& b);

// The order in force: 0 degree-lexicographic, 1 degree-reverse-lexicographic.
extern int monom_ordering;
extern monom_comparison monom_ordering_lt;
extern monom_comparison monom_ordering_le;
extern monom_comparison proj_monom_ordering_lt;
extern monom_comparison proj_monom_ordering_le;

// Put an order in force. Polynomials made before are meaningless afterwards.
void use_deglex();
void use_degrevlex();

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
