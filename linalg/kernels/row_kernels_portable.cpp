// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include "linalg/kernels/row_kernels.h"

namespace zep::linalg {

namespace {

using byte = std::uint8_t;

// d - s modulo p for bytes below p.
inline byte difference(byte d, byte s, byte p) {
  const auto borrowed = d < s ? p : byte{0};
  return static_cast<byte>(d - s + borrowed);
}

// d + c * s as d - (p - c) * s: a difference takes the compiler one instruction less than a sum
// that may not fit a byte.
void axpy(byte* __restrict d, const byte* __restrict s, std::size_t n, factor c) {
  const auto p8 = static_cast<byte>(c.p);
  const lane fraction = c.negative().fraction;
  for (std::size_t i = 0; i < n; ++i) {
    d[i] = difference(d[i], static_cast<byte>(product(s[i], c.p, fraction)), p8);
  }
}

void add(byte* __restrict d, const byte* __restrict s, std::size_t n, lane p) {
  const auto p8 = static_cast<byte>(p);
  for (std::size_t i = 0; i < n; ++i) d[i] = difference(d[i], static_cast<byte>(p8 - s[i]), p8);
}

void subtract(byte* __restrict d, const byte* __restrict s, std::size_t n, lane p) {
  const auto p8 = static_cast<byte>(p);
  for (std::size_t i = 0; i < n; ++i) d[i] = difference(d[i], s[i], p8);
}

void add_bits(byte* __restrict d, const byte* __restrict s, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i] ^= s[i];
}

void scale(byte* d, std::size_t n, factor c) {
  for (std::size_t i = 0; i < n; ++i) d[i] = static_cast<byte>(product(d[i], c.p, c.fraction));
}

void negate(byte* d, std::size_t n, lane p) {
  const auto p8 = static_cast<byte>(p);
  for (std::size_t i = 0; i < n; ++i) d[i] = difference(0, d[i], p8);
}

// The maximum changes nothing. Without it the compiler finds that it may multiply the quotient in
// bytes, for which baseline processors have no instruction, and packs and unpacks once more.
void pointwise_product(byte* d, const byte* a, const byte* b, std::size_t n, divisor m) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto rest = static_cast<std::int16_t>(remainder(low_half(a[i], b[i]), m));
    d[i] = static_cast<byte>(std::max(rest, std::int16_t{0}));
  }
}

// The compiler adds pairs of products in one instruction where the factors are signed 16-bit
// numbers, which it forgets when both come straight from bytes: so a[i] - p stands for a[i].
std::int32_t dot(const byte* a, const byte* b, std::size_t n, lane p) {
  const auto signed_p = static_cast<std::int16_t>(p);
  std::int32_t sum = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const auto x = static_cast<std::int16_t>(a[i] - signed_p);
    const auto y = static_cast<std::int16_t>(b[i]);
    sum += x * y;
  }
  return sum;
}

}  // namespace

const row_kernels portable_kernels = {.name = "portable",
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
