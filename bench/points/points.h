// Point sets for benchmarks.
#pragma once

#include <iostream>
#include <sstream>

#include "arith/Fp8.h"
#include "arith/ring.h"
#include "base/reporter.h"
#include "points/record/scheme.h"

namespace zep::tests {

// Puts aside what the computations print while it lives.
class silence {
 public:
  silence() : before_(std::cout.rdbuf(dropped_.rdbuf())) { verbose = 0; }
  ~silence() { std::cout.rdbuf(before_); }
  silence(const silence&) = delete;
  silence& operator=(const silence&) = delete;

 private:
  std::ostringstream dropped_;
  std::streambuf* before_;
};

inline void set_ring(int p, int n) {
  Fp8::prime = p;
  Fp8::init();
  set_dimension(n);
}

// s points of the space in force with irregular coordinates. A repetition would not matter here.
inline scheme irregular_points(int s) {
  scheme X(s);
  unsigned x = 1;
  for (int i = 0; i < s; ++i) {
    for (int j = 0; j < dim; ++j) {
      x = x * 1664525U + 1013904223U;
      X.P[i][j] = static_cast<int>(x >> 9U);
    }
  }
  return X;
}

// s points (1 : t : t^2 : ...) of the rational normal curve of the space in force, s < p. Any n + 1
// of them are independent, and their separators are as uniform as can be.
inline scheme points_on_a_normal_curve(int s) {
  scheme X(s);
  for (int i = 0; i < s; ++i) {
    int power = 1;
    for (int j = 0; j < dim; ++j) {
      power = power * (i + 1) % Fp8::prime;
      X.P[i][j] = power;
    }
  }
  return X;
}

}  // namespace zep::tests
