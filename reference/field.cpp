// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/field.h"

namespace zep::reference {

Fp pow(Fp x, int n) {
  unsigned e = n < 0 ? 0U - static_cast<unsigned>(n) : static_cast<unsigned>(n);
  // The first power is x as it is, reduced or not.
  if (e == 1) return x;
  Fp power(1);
  for (; e > 1; e >>= 1U) {
    if ((e & 1U) != 0) power *= x;
    x *= x;
  }
  return e == 1 ? power * x : power;
}

Fp abs(Fp x) { return sign(x) == -1 ? -x : x; }

int len(const Rational& r) { return static_cast<int>(r.get_str().size()); }

}  // namespace zep::reference
