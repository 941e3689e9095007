#include "arith/Fp8.h"

#include <ostream>

#include "arith/Fp.h"
#include "arith/division_by_zero.h"

namespace zep::arith {

int Fp8::prime = 101;
std::uint32_t Fp8::reciprocal = 0xFFFFFFFF / 101;
Fp8::table Fp8::add;
Fp8::table Fp8::sub;
Fp8::table Fp8::mul;
Fp8::table Fp8::div;

namespace {

std::uint8_t inverse_or_zero(int b) {
  Fp y(b);
  if (!y.is_unit()) return 0;
  y.invert();
  return static_cast<std::uint8_t>(y.value());
}

}  // namespace

void Fp8::init() {
  Fp::prime = prime;
  reciprocal = 0xFFFFFFFF / static_cast<std::uint32_t>(prime);
  for (int a = 0; a < prime; ++a) {
    for (int b = 0; b < prime; ++b) {
      add[a][b] = static_cast<std::uint8_t>((a + b) % prime);
      sub[a][b] = static_cast<std::uint8_t>((a - b + prime) % prime);
      mul[a][b] = static_cast<std::uint8_t>(a * b % prime);
    }
  }
  // a / b as a times the inverse of b: one extended Euclid a column instead of one an entry.
  for (int b = 1; b < prime; ++b) {
    const std::uint8_t inverse = inverse_or_zero(b);
    for (int a = 0; a < prime; ++a) div[a][b] = mul[a][inverse];
  }
}

void Fp8::invert() {
  if (q_ == 0) division_by_zero("Fp8");
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
