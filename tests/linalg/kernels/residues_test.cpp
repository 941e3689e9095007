// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/residues.h"

#include <gtest/gtest.h>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

int wrong_multiples(int c) {
  const factor f = factor::of(Fp8(c));
  const factor negative = f.negative();
  int wrong = 0;
  for (int s = 0; s < Fp8::prime; ++s) {
    const auto x = static_cast<lane>(s);
    const int expected = c * s % Fp8::prime;
    const int found = product(x, f.p, f.fraction);
    const int opposite = product(x, f.p, negative.fraction);
    wrong += found != expected;
    // -0 is not represented by factors: c = 0 has no negative below p.
    wrong += c > 0 && (expected + opposite) % Fp8::prime != 0;
    wrong += c > 0 && opposite >= Fp8::prime;
  }
  return wrong;
}

TEST(Residues, FactorsAreExactForEveryPairOfElementsInEveryCharacteristic) {
  for (int p = 2; p <= 251; ++p) {
    const ring_in_force ring(p);
    int wrong = 0;
    for (int c = 0; c < p; ++c) wrong += wrong_multiples(c);
    EXPECT_EQ(wrong, 0) << "p = " << p;
  }
}

TEST(Residues, TheNegativeOfAFactorIsPMinusIt) {
  const ring_in_force ring(101);
  EXPECT_EQ(factor::of(Fp8(30)).negative().c, 71);
}

TEST(Residues, DivisorsAreExactForEveryProductInEveryCharacteristic) {
  for (int p = 2; p <= 251; ++p) {
    const ring_in_force ring(p);
    const divisor m = divisor::current();
    int wrong = 0;
    for (int x = 0; x <= (p - 1) * (p - 1); ++x) {
      wrong += remainder(static_cast<lane>(x), m) != x % p;
    }
    EXPECT_EQ(wrong, 0) << "p = " << p;
  }
}

}  // namespace
}  // namespace zep::tests
