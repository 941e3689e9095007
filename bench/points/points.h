// SPDX-License-Identifier: GPL-3.0-or-later
// Point sets for benchmarks.
#pragma once

#include "arith/ring_in_force.h"
#include "linalg/matrix.h"
#include "points/ring/order_ideal.h"
#include "points/walk/buchberger_moeller.h"
#include "tests/told.h"

namespace zep::tests {

// F_p and P^n with the term order of the beginning.
inline ring ring_of(int p, int n) { return {.p = p, .n = n}; }

// s points of the space in force with irregular coordinates, as rows. A repetition would not matter
// here.
inline matrix irregular_points(int s) {
  matrix P(dim, s);
  unsigned x = 1;
  for (int i = 0; i < s; ++i) {
    for (int j = 0; j < dim; ++j) {
      x = x * 1664525U + 1013904223U;
      P[i][j] = static_cast<int>(x >> 9U);
    }
  }
  return P;
}

// s points (1 : t : t^2 : ...) of the rational normal curve of the space in force, s < p. Any n + 1
// of them are independent, and their separators are as uniform as can be.
inline matrix points_on_a_normal_curve(int s) {
  matrix P(dim, s);
  for (int i = 0; i < s; ++i) {
    int power = 1;
    for (int j = 0; j < dim; ++j) {
      power = power * (i + 1) % Fp8::prime;
      P[i][j] = power;
    }
  }
  return P;
}

}  // namespace zep::tests
