// SPDX-License-Identifier: GPL-3.0-or-later
// The prime field F_p on machine integers: exact, slow, used to build the tables of Fp8 and to
// read and print coefficients. Everything stored is an Fp8.
#pragma once

#include <iosfwd>

#include "arith/reading.h"
#include "arith/ring.h"

namespace zep::arith {

// An element of F_p, `prime` = p. The int is normally the representative 0 .. p-1. Three operations
// hand on other values, and nothing corrects them: construction stores what it is given, assignment
// of an int below -p may stay negative, and the negative of 0 is p (it is not 0, has sign -1, and
// prints as 0).
class Fp {
 public:
  // The characteristic of the ring in force.
  static constexpr const int& prime = ring_data::p;

  Fp() = default;
  explicit Fp(int n) : q_(n) {}
  Fp& operator=(int n) {
    q_ = static_cast<int>((static_cast<long long>(prime) + n) % prime);
    return *this;
  }

  int value() const { return q_; }

  bool operator==(const Fp&) const = default;
  bool operator==(int n) const { return q_ == n; }

  Fp& operator+=(Fp b) {
    q_ = (q_ + b.q_) % prime;
    return *this;
  }
  Fp& operator-=(Fp b) {
    q_ = (q_ - b.q_ + prime) % prime;
    return *this;
  }
  Fp& operator*=(Fp b) {
    q_ = q_ * b.q_ % prime;
    return *this;
  }
  // Throws division_by_zero for a divisor without an inverse.
  Fp& operator/=(Fp b) {
    b.invert();
    return *this *= b;
  }

  // True when the element has an inverse: not zero and, in a composite characteristic, no divisor
  // of zero.
  bool is_unit() const;

  // Replaces the element by its inverse (extended Euclid). Throws division_by_zero without one.
  void invert();

 private:
  int q_ = 0;
};

inline const Fp& operator+(const Fp& a) { return a; }
inline Fp operator-(Fp a) { return Fp(Fp::prime - a.value()); }
inline Fp operator+(Fp a, Fp b) { return a += b; }
inline Fp operator-(Fp a, Fp b) { return a -= b; }
inline Fp operator*(Fp a, Fp b) { return a *= b; }
inline Fp operator/(Fp a, Fp b) { return a /= b; }

// The representative that is printed: v - p for v > p/2, else v.
int symmetric(Fp x);

// 0 for 0, 1 for a value up to p/2, else -1.
int sign(Fp x);

// Prints the symmetric representative.
std::ostream& operator<<(std::ostream& out, Fp x);

// Reads a rational number (see reading.h) and reduces it to 0 .. p-1; fails as read_rational does,
// with 0.
// Throws division_by_zero for a denominator without an inverse.
std::istream& operator>>(std::istream& in, Fp& x);

// Printed widths. `len(int)` counts at most five digits, and one more for a minus sign.
int len(int n);
int len(Fp x);

}  // namespace zep::arith
