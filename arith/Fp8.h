// SPDX-License-Identifier: GPL-3.0-or-later
// The coefficient field of all computation: one byte an element, one look-up an operation.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "arith/ring.h"

namespace zep::arith {

// The largest one whose elements fit a byte.
constexpr int largest_prime = 251;

// An element of F_p for p <= 251, p = `prime`: the representative 0 .. p-1 in one byte.
//
// Every operator is a single look-up in a 256 x 256 table, entry [left][right], filled when a ring
// is put in force; rows and columns from p on are 0. Column 0 of `div` is 0: division by zero gives
// 0 without a word, only `invert` reports it. In a composite characteristic the same holds for
// every divisor without an inverse.
class Fp8 {
 public:
  using table = std::uint8_t[256][256];

 private:
  friend void enforce(const ring& R);

  static void fill_tables();

  // The characteristic that the tables are filled for; 0 at first.
  static int filled_for_;
  static table add_;
  static table sub_;
  static table mul_;
  static table div_;

 public:
  static constexpr const int& prime = ring_data::p;
  // floor((2^32 - 1) / prime), for reductions by multiplication over whole rows.
  static constexpr const std::uint32_t& reciprocal = ring_data::reciprocal;
  static constexpr const table& add = add_;
  static constexpr const table& sub = sub_;
  static constexpr const table& mul = mul_;
  static constexpr const table& div = div_;

  Fp8() = default;
  // Stores the low byte of n as it is; callers pass 0 .. p-1.
  explicit Fp8(int n) : q_(static_cast<std::uint8_t>(n)) {}
  // Stores n % prime; callers pass non-negative ints.
  Fp8& operator=(int n) {
    q_ = static_cast<std::uint8_t>(n % prime);
    return *this;
  }

  std::uint8_t value() const { return q_; }

  bool operator==(const Fp8&) const = default;
  // Compares with the byte's value; n is not reduced.
  bool operator==(int n) const { return q_ == n; }

  Fp8& operator+=(Fp8 b) { return store(add[q_][b.q_]); }
  Fp8& operator-=(Fp8 b) { return store(sub[q_][b.q_]); }
  Fp8& operator*=(Fp8 b) { return store(mul[q_][b.q_]); }
  Fp8& operator/=(Fp8 b) { return store(div[q_][b.q_]); }

  // Replaces the element by its inverse. Throws division_by_zero for zero.
  void invert();

 private:
  Fp8& store(std::uint8_t q) {
    q_ = q;
    return *this;
  }

  std::uint8_t q_ = 0;
};

static_assert(sizeof(Fp8) == 1);

inline const Fp8& operator+(const Fp8& a) { return a; }
inline Fp8 operator-(Fp8 a) { return Fp8(Fp8::sub[0][a.value()]); }
inline Fp8 operator+(Fp8 a, Fp8 b) { return a += b; }
inline Fp8 operator-(Fp8 a, Fp8 b) { return a -= b; }
inline Fp8 operator*(Fp8 a, Fp8 b) { return a *= b; }
inline Fp8 operator/(Fp8 a, Fp8 b) { return a /= b; }

// 0 for 0, 1 for a value up to p/2, else -1: the elements that print with a minus sign.
inline int sign(Fp8 a) {
  if (a == 0) return 0;
  return a.value() <= Fp8::prime / 2 ? 1 : -1;
}

// The negative of an element of sign -1, the element itself otherwise.
inline Fp8 abs(Fp8 a) { return sign(a) == -1 ? -a : a; }

// Printed width.
int len(Fp8 a);

// Prints the symmetric representative, as Fp does.
std::ostream& operator<<(std::ostream& out, Fp8 a);

// Reads a rational number modulo p, as Fp does; 0 when that fails.
std::istream& operator>>(std::istream& in, Fp8& a);

}  // namespace zep::arith
