// SPDX-License-Identifier: GPL-3.0-or-later
// Power products of the ring's variables.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "arith/ring.h"
#include "base/output.h"

namespace zep::arith {

// A monomial: affine, in the first `dim` variables, or projective, in all `proj` of them with the
// homogenising variable last. The member `dim` is its own number of slots. A small value, copied as
// bytes, never allocated.
//
//     slot   0 .. proj - 2     proj - 1         beyond
//            affine variables  homogenising     always 0
//
// Exponents are signed, quotients may be negative; sums wrap in 16 bits.
class monom {
 public:
  using exponent = std::int16_t;

  // An affine monomial whose `proj` slots all hold c. monom() is the monomial 1.
  explicit monom(exponent c = 0) {
    *this = c;
    dim_ = static_cast<std::int16_t>(arith::dim);
  }

  // All `proj` slots become c; `dim` stays.
  monom& operator=(exponent c) {
    for (int i = 0; i < proj; ++i) exp_[i] = c;
    return *this;
  }

  int dim() const { return dim_; }
  exponent exp(int i) const { return exp_[i]; }
  void set_exp(int i, int e) { exp_[i] = static_cast<exponent>(e); }

  // Sum of the first `proj` - 1 exponents, the affine degree.
  int tot_deg() const {
    int degree = 0;
    for (int i = 0; i < proj - 1; ++i) degree += exp_[i];
    return degree;
  }

  // Number of slots below `dim` with a positive exponent.
  int vars() const {
    int count = 0;
    for (int i = 0; i < dim_; ++i) count += exp_[i] > 0 ? 1 : 0;
    return count;
  }

  // Multiply and divide in place, over the slots that both monomials have; `dim` stays.
  monom& operator*=(const monom& b);
  monom& operator/=(const monom& b);

  // Makes the monomial projective, with exponent 0 of the homogenising variable.
  friend void prj(monom& m) {
    m.dim_ = static_cast<std::int16_t>(proj);
    m.set_exp(proj - 1, 0);
  }

 private:
  std::int16_t dim_;
  std::array<exponent, max_variables> exp_{};
};

// Equality over the slots that both have: a projective monomial equals its affine part.
bool operator==(const monom& a, const monom& b);

// Equality over the affine slots.
bool aff_eq(const monom& a, const monom& b);

// Product and quotient, of the kind of a.
monom operator*(const monom& a, const monom& b);
monom operator/(const monom& a, const monom& b);

// Maximum and minimum of the exponents, over the slots that both have; the rest is a's.
monom lcm(const monom& a, const monom& b);
monom gcd(const monom& a, const monom& b);

// The affine monomial of variable i, 0 <= i < dim; the projective one, 0 <= i < proj.
monom variable(int i);
monom projective_variable(int i);

// 0 for the monomial 1, else 1.
int sign(const monom& m);

// Width of the printed monomial; 0 for the monomial 1, which is left out behind a coefficient.
int len(const monom& m);

// Hash of the affine part, in step with `aff_eq`.
struct monom_hash {
  std::size_t operator()(const monom& m) const;
};

// Equality of the affine part, for look-ups by monomial.
struct monom_equal {
  bool operator()(const monom& a, const monom& b) const { return aff_eq(a, b); }
};

// The two text forms: X^2YZ^3 on the screen, X2YZ3 in files. The monomial 1 is "1".
enum class text_form { screen, file };

// Appends the monomial to `text`.
void append(std::string& text, const monom& m, text_form form);

// Writes the monomial from `to` on, the monomial 1 as nothing, as behind a
// coefficient. Returns the end of what was written, at most longest_monom characters.
char* write_variables(char* to, const monom& m, text_form form);
inline constexpr std::size_t longest_monom = max_variables * (2 + longest_number);

// Screen form.
std::ostream& operator<<(std::ostream& out, const monom& m);

// File form.
void put(std::ostream& out, const monom& m);

}  // namespace zep::arith
