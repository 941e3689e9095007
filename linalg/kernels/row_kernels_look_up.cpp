// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/Fp8.h"
#include "linalg/kernels/row_kernels.h"

namespace zep::linalg {

namespace {

using byte = std::uint8_t;

void axpy(byte* d, const byte* s, std::size_t n, factor c) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Fp8::add[d[i]][Fp8::mul[c.c][s[i]]];
}

void add(byte* d, const byte* s, std::size_t n, lane /*p*/) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Fp8::add[d[i]][s[i]];
}

void subtract(byte* d, const byte* s, std::size_t n, lane /*p*/) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Fp8::sub[d[i]][s[i]];
}

void add_bits(byte* d, const byte* s, std::size_t n) { add(d, s, n, 2); }

void scale(byte* d, std::size_t n, factor c) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Fp8::mul[c.c][d[i]];
}

void negate(byte* d, std::size_t n, lane /*p*/) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Fp8::sub[0][d[i]];
}

void pointwise_product(byte* d, const byte* a, const byte* b, std::size_t n, divisor /*m*/) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Fp8::mul[a[i]][b[i]];
}

std::int32_t dot(const byte* a, const byte* b, std::size_t n, lane /*p*/) {
  byte sum = 0;
  for (std::size_t i = 0; i < n; ++i) sum = Fp8::add[sum][Fp8::mul[a[i]][b[i]]];
  return sum;
}

}  // namespace

const row_kernels look_up_kernels = {.name = "look-ups",
                                     .axpy = axpy,
                                     .add = add,
                                     .subtract = subtract,
                                     .add_bits = add_bits,
                                     .scale = scale,
                                     .negate = negate,
                                     .pointwise_product = pointwise_product,
                                     .dot = dot,
                                     .add_to_tile = nullptr};

}  // namespace zep::linalg
