// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/Fp.h"

#include <cstdlib>
#include <numeric>
#include <ostream>
#include <utility>

#include "arith/division_by_zero.h"

namespace zep::arith {

bool Fp::is_unit() const { return std::gcd(q_, prime) == 1; }

void Fp::invert() {
  if (!is_unit()) throw division_by_zero{"Fp"};
  int r0 = prime;
  int r1 = (q_ % prime + prime) % prime;
  int s0 = 0;
  int s1 = 1;
  while (r1 != 1) {
    const int quotient = r0 / r1;
    s0 = std::exchange(s1, s0 - quotient * s1);
    r0 = std::exchange(r1, r0 % r1);
  }
  q_ = (prime + s1) % prime;
}

int symmetric(Fp x) { return x.value() > Fp::prime / 2 ? x.value() - Fp::prime : x.value(); }

int sign(Fp x) {
  if (x == 0) return 0;
  return x.value() <= Fp::prime / 2 ? 1 : -1;
}

std::ostream& operator<<(std::ostream& out, Fp x) { return out << symmetric(x); }

std::istream& operator>>(std::istream& in, Fp& x) {
  Rational r;
  if (!read_rational(in, r)) {
    x = Fp(0);
    return in;
  }
  const auto p = static_cast<unsigned long>(Fp::prime);
  // mpz_fdiv_ui rounds down, so a negative numerator gives its residue in 0 .. p-1.
  x = Fp(static_cast<int>(mpz_fdiv_ui(r.get_den_mpz_t(), p)));
  x.invert();
  x *= Fp(static_cast<int>(mpz_fdiv_ui(r.get_num_mpz_t(), p)));
  return in;
}

int len(int n) {
  const long long magnitude = std::llabs(static_cast<long long>(n));
  int width = 1;
  for (long long limit = 10; width < 5 && magnitude >= limit; limit *= 10) ++width;
  return width + (n < 0 ? 1 : 0);
}

int len(Fp x) { return len(symmetric(x)); }

}  // namespace zep::arith
