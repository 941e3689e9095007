// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/Fp8.h"

#include <cstddef>
#include <cstring>
#include <ostream>

#include "arith/Fp.h"
#include "arith/division_by_zero.h"

namespace zep::arith {

int Fp8::filled_for_ = 0;
Fp8::table Fp8::add_;
Fp8::table Fp8::sub_;
Fp8::table Fp8::mul_;
Fp8::table Fp8::div_;

namespace {

std::uint8_t inverse_or_zero(int b) {
  Fp y(b);
  if (!y.is_unit()) return 0;
  y.invert();
  return static_cast<std::uint8_t>(y.value());
}

}  // namespace

void Fp8::fill_tables() {
  if (filled_for_ == prime) return;
  // What an earlier characteristic has left.
  for (table* const entries : {&add_, &sub_, &mul_, &div_}) {
    std::memset(*entries, 0, sizeof **entries * static_cast<std::size_t>(filled_for_));
  }
  filled_for_ = prime;
  for (int a = 0; a < prime; ++a) {
    for (int b = 0; b < prime; ++b) {
      add_[a][b] = static_cast<std::uint8_t>((a + b) % prime);
      sub_[a][b] = static_cast<std::uint8_t>((a - b + prime) % prime);
      mul_[a][b] = static_cast<std::uint8_t>(a * b % prime);
    }
  }
  // a / b as a times the inverse of b: one extended Euclid a column instead of one an entry.
  for (int b = 1; b < prime; ++b) {
    const std::uint8_t inverse = inverse_or_zero(b);
    for (int a = 0; a < prime; ++a) div_[a][b] = mul_[a][inverse];
  }
}

void Fp8::invert() {
  if (q_ == 0) throw division_by_zero{"Fp8"};
  q_ = div[1][q_];
}

int len(Fp8 a) { return len(Fp(a.value())); }

std::ostream& operator<<(std::ostream& out, Fp8 a) { return out << Fp(a.value()); }

std::istream& operator>>(std::istream& in, Fp8& a) {
  Fp x(0);
  in >> x;
  a = x.value();
  return in;
}

}  // namespace zep::arith
