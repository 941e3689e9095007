// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/ordering.h"

namespace zep::arith {

namespace {

// Difference of the exponents at the first affine slot, from slot 0 upward, where they differ.
int first_difference(const monom& a, const monom& b) {
  for (int i = 0; i < proj - 1; ++i) {
    if (a.exp(i) != b.exp(i)) return a.exp(i) - b.exp(i);
  }
  return 0;
}

// The same from the last affine slot downward.
int last_difference(const monom& a, const monom& b) {
  for (int i = proj - 2; i >= 0; --i) {
    if (a.exp(i) != b.exp(i)) return a.exp(i) - b.exp(i);
  }
  return 0;
}

int degree_difference(const monom& a, const monom& b) {
  int difference = 0;
  for (int i = 0; i < proj - 1; ++i) difference += a.exp(i) - b.exp(i);
  return difference;
}

int homogenising_difference(const monom& a, const monom& b) {
  return a.exp(proj - 1) - b.exp(proj - 1);
}

}  // namespace

bool lex_lt(const monom& a, const monom& b) { return first_difference(a, b) < 0; }
bool lex_le(const monom& a, const monom& b) { return first_difference(a, b) <= 0; }
bool revlex_lt(const monom& a, const monom& b) { return last_difference(a, b) > 0; }
bool revlex_le(const monom& a, const monom& b) { return last_difference(a, b) >= 0; }

bool deglex_lt(const monom& a, const monom& b) {
  const int d = degree_difference(a, b);
  return d != 0 ? d < 0 : lex_lt(a, b);
}

bool deglex_le(const monom& a, const monom& b) {
  const int d = degree_difference(a, b);
  return d != 0 ? d < 0 : lex_le(a, b);
}

bool degrevlex_lt(const monom& a, const monom& b) {
  const int d = degree_difference(a, b);
  return d != 0 ? d < 0 : revlex_lt(a, b);
}

bool degrevlex_le(const monom& a, const monom& b) {
  const int d = degree_difference(a, b);
  return d != 0 ? d < 0 : revlex_le(a, b);
}

bool proj_deglex_lt(const monom& a, const monom& b) {
  return deglex_lt(a, b) || (aff_eq(a, b) && homogenising_difference(a, b) < 0);
}

bool proj_deglex_le(const monom& a, const monom& b) {
  return deglex_lt(a, b) || (aff_eq(a, b) && homogenising_difference(a, b) <= 0);
}

bool proj_degrevlex_lt(const monom& a, const monom& b) {
  return degrevlex_lt(a, b) || (aff_eq(a, b) && homogenising_difference(a, b) < 0);
}

bool proj_degrevlex_le(const monom& a, const monom& b) {
  return degrevlex_lt(a, b) || (aff_eq(a, b) && homogenising_difference(a, b) <= 0);
}

bool Zn_order_le(const monom& a, const monom& b) {
  for (int i = 0; i < a.dim(); ++i) {
    if (a.exp(i) > b.exp(i)) return false;
  }
  return true;
}

monom_comparison order_in_force::lt_ = degrevlex_lt;
monom_comparison order_in_force::le_ = degrevlex_le;
monom_comparison order_in_force::proj_lt_ = proj_degrevlex_lt;
monom_comparison order_in_force::proj_le_ = proj_degrevlex_le;

void order_in_force::set(term_order order) {
  const bool lexicographic = order == term_order::deglex;
  lt_ = lexicographic ? deglex_lt : degrevlex_lt;
  le_ = lexicographic ? deglex_le : degrevlex_le;
  proj_lt_ = lexicographic ? proj_deglex_lt : proj_degrevlex_lt;
  proj_le_ = lexicographic ? proj_deglex_le : proj_degrevlex_le;
}

}  // namespace zep::arith
