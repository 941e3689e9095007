#include "linalg/row_operations.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace zep {

namespace {

using lane = std::uint16_t;

// Every sum before a reduction fits a 16-bit lane: d + c * s with d, c, s < p.
constexpr unsigned largest_prime = 251;
static_assert((largest_prime - 1) + (largest_prime - 1) * (largest_prime - 1) <= 0xFFFFU);

// So many products of two elements, and no more, are added up before a reduction: their sum fits a
// signed 32-bit lane.
constexpr std::size_t products_in_a_sum = std::size_t{1} << 15U;
static_assert(products_in_a_sum * (largest_prime - 1) * (largest_prime - 1) <= 0x7FFFFFFFU);

// x mod p by a multiplication. With m = floor(2^16 / p) the quotient floor(x * m / 2^16) is
// floor(x / p) or one less for x < 2^16, so one conditional subtraction is left; as an unsigned
// minimum it needs no branch, since a negative difference wraps to a large number.
//
// The loops are functions of their own that take 16-bit arguments: inlined, the compiler may see
// that p is kept in an int and spread the lanes to 32 bits, at a third of the speed.
struct modulus {
  lane p;
  lane reciprocal;

  static modulus current() { return {static_cast<lane>(Fp8::prime), Fp8::reciprocal}; }
};

inline lane reduce(lane x, lane p, lane reciprocal) {
  const auto quotient = static_cast<lane>(
      (static_cast<std::uint32_t>(x) * static_cast<std::uint32_t>(reciprocal)) >> 16U);
  const auto rest = static_cast<lane>(x - static_cast<lane>(quotient * p));
  return std::min(rest, static_cast<lane>(rest - p));
}

const std::uint8_t* bytes(const Fp8* row) { return reinterpret_cast<const std::uint8_t*>(row); }
std::uint8_t* bytes(Fp8* row) { return reinterpret_cast<std::uint8_t*>(row); }

[[gnu::noinline]] void axpy_bytes(std::uint8_t* __restrict d, const std::uint8_t* __restrict s,
                                  lane c, std::size_t n, lane p, lane reciprocal) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto sum = static_cast<lane>(d[i] + static_cast<lane>(c * s[i]));
    d[i] = static_cast<std::uint8_t>(reduce(sum, p, reciprocal));
  }
}

[[gnu::noinline]] void scale_bytes(std::uint8_t* d, lane c, std::size_t n, lane p,
                                   lane reciprocal) {
  for (std::size_t i = 0; i < n; ++i) {
    d[i] = static_cast<std::uint8_t>(reduce(static_cast<lane>(c * d[i]), p, reciprocal));
  }
}

[[gnu::noinline]] void product_bytes(std::uint8_t* d, const std::uint8_t* a, const std::uint8_t* b,
                                     std::size_t n, lane p, lane reciprocal) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto product = static_cast<lane>(static_cast<lane>(a[i]) * static_cast<lane>(b[i]));
    d[i] = static_cast<std::uint8_t>(reduce(product, p, reciprocal));
  }
}

// Signed 16-bit factors: the processor adds pairs of their products in one instruction.
[[gnu::noinline]] std::int32_t dot_bytes(const std::uint8_t* a, const std::uint8_t* b,
                                         std::size_t n) {
  std::int32_t sum = 0;
  for (std::size_t i = 0; i < n; ++i) {
    sum += static_cast<std::int16_t>(a[i]) * static_cast<std::int16_t>(b[i]);
  }
  return sum;
}

}  // namespace

void axpy(Fp8* d, const Fp8* s, Fp8 c, std::size_t n) {
  if (c == 0) return;
  const modulus m = modulus::current();
  axpy_bytes(bytes(d), bytes(s), c.value(), n, m.p, m.reciprocal);
}

void scale(Fp8* d, Fp8 c, std::size_t n) {
  if (c == 1) return;
  const modulus m = modulus::current();
  scale_bytes(bytes(d), c.value(), n, m.p, m.reciprocal);
}

void pointwise_product(Fp8* d, const Fp8* a, const Fp8* b, std::size_t n) {
  const modulus m = modulus::current();
  product_bytes(bytes(d), bytes(a), bytes(b), n, m.p, m.reciprocal);
}

Fp8 dot(const Fp8* a, const Fp8* b, std::size_t n) {
  Fp8 sum(0);
  for (std::size_t i = 0; i < n; i += products_in_a_sum) {
    Fp8 part;
    part = dot_bytes(bytes(a + i), bytes(b + i), std::min(products_in_a_sum, n - i));
    sum += part;
  }
  return sum;
}

std::size_t first_nonzero(const Fp8* s, std::size_t n) {
  std::size_t i = 0;
  for (std::uint64_t word = 0; i + sizeof word <= n; i += sizeof word) {
    std::memcpy(&word, s + i, sizeof word);
    if (word != 0) break;
  }
  while (i < n && s[i] == 0) ++i;
  return i;
}

}  // namespace zep
