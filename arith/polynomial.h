// SPDX-License-Identifier: GPL-3.0-or-later
// Polynomials over Fp8.
#pragma once

#include <iosfwd>
#include <vector>

#include "arith/Fp8.h"
#include "arith/monom.h"

namespace zep::arith {

// A sum of terms, strictly descending in the order in force, every coefficient non-zero. The zero
// polynomial is the single term 0 * 1, so looking at the leading coefficient tells zero.
//
// Affine polynomials have affine terms; `hom` makes projective ones, whose products with projective
// monomials are projective. Sums compare the affine parts of terms only, in both kinds.
//
// A polynomial that was moved from may only be assigned to or destroyed.
class polynomial {
 public:
  // c * 1, with c reduced as Fp8's assignment does.
  explicit polynomial(int c = 0);
  // 1 * m.
  explicit polynomial(const monom& m) : polynomial(m, Fp8(1)) {}
  // c * m.
  polynomial(const monom& m, Fp8 c);
  // The given terms, which must be descending with non-zero coefficients; none for zero.
  polynomial(std::vector<monom> terms, std::vector<Fp8> coefs);

  // Becomes c * 1; the monomial has as many slots as the leading one before.
  polynomial& operator=(int c);
  polynomial& operator=(const monom& m) { return *this = polynomial(m); }

  int no_of_monoms() const { return static_cast<int>(term_.size()); }
  // Term i and its coefficient, 0 <= i < no_of_monoms(); term 0 leads.
  const monom& term(int i) const { return term_[i]; }
  Fp8 coef(int i) const { return coef_[i]; }

  polynomial& operator+=(const polynomial& b);
  polynomial& operator-=(const polynomial& b);
  polynomial& operator*=(Fp8 c);
  // Negates every coefficient.
  void negate();
  // Multiplies every term in place; the order of terms is that of the factor.
  polynomial& operator*=(const monom& m);

  // The file form: no blanks, no carets, no line breaking.
  void put(std::ostream& out) const;

 private:
  friend void hom(polynomial& h, const polynomial& f);

  // Checks what the class promises.
  void ensure_terms() const;

  // Divisors of zero exist in a composite characteristic only; there a product may lose terms.
  void drop_zero_terms();

  std::vector<monom> term_;
  std::vector<Fp8> coef_;
};

polynomial operator+(const polynomial& a);
polynomial operator-(polynomial a);
polynomial operator+(polynomial a, const polynomial& b);
polynomial operator-(polynomial a, const polynomial& b);
polynomial operator*(polynomial a, Fp8 c);
polynomial operator*(const polynomial& a, const polynomial& b);

// Equal terms and coefficients.
bool operator==(const polynomial& a, const polynomial& b);

// Order of the leading monomials.
bool operator<(const polynomial& a, const polynomial& b);
bool operator>(const polynomial& a, const polynomial& b);

// 0 for zero, else 1.
int sign(const polynomial& a);

// Makes h the homogenisation of f to the degree of its leading term; the order of terms is f's.
void hom(polynomial& h, const polynomial& f);

// Writes the screen form, X^2 - 3XY + 1, on a line that has reached the given column. Breaks the
// line before a term that would bring it to LL - 1 or beyond, but never before the first one.
void show(std::ostream& out, const polynomial& f, int column);

// The screen form from the start of a line on.
std::ostream& operator<<(std::ostream& out, const polynomial& f);

}  // namespace zep::arith
