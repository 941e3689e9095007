#include "linalg/row_operations.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "linalg/kernels/bounds.h"
#include "linalg/kernels/residues.h"
#include "linalg/kernels/row_kernels.h"

namespace zep::linalg {

namespace {

const std::uint8_t* bytes(const Fp8* row) { return reinterpret_cast<const std::uint8_t*>(row); }
std::uint8_t* bytes(Fp8* row) { return reinterpret_cast<std::uint8_t*>(row); }

lane p() { return static_cast<lane>(Fp8::prime); }

// Whether c is p - 1: multiplying by it needs no product.
bool is_minus_one(Fp8 c) { return c.value() + 1 == Fp8::prime; }

}  // namespace

void axpy(Fp8* d, const Fp8* s, Fp8 c, std::size_t n) {
  if (c == 0) return;
  const row_kernels& kernels = kernels_in_force::get();
  if (Fp8::prime == 2) return kernels.add_bits(bytes(d), bytes(s), n);
  if (c == 1) return kernels.add(bytes(d), bytes(s), n, p());
  if (is_minus_one(c)) return kernels.subtract(bytes(d), bytes(s), n, p());
  kernels.axpy(bytes(d), bytes(s), n, factor::of(c));
}

void scale(Fp8* d, Fp8 c, std::size_t n) {
  if (c == 1) return;
  if (c == 0) {
    std::fill_n(d, n, Fp8(0));
  } else if (is_minus_one(c)) {
    kernels_in_force::get().negate(bytes(d), n, p());
  } else {
    kernels_in_force::get().scale(bytes(d), n, factor::of(c));
  }
}

void pointwise_product(Fp8* d, const Fp8* a, const Fp8* b, std::size_t n) {
  kernels_in_force::get().pointwise_product(bytes(d), bytes(a), bytes(b), n, divisor::current());
}

Fp8 dot(const Fp8* a, const Fp8* b, std::size_t n) {
  int sum = 0;
  for (std::size_t i = 0; i < n; i += products_in_a_sum) {
    const std::size_t length = std::min(products_in_a_sum, n - i);
    sum += kernels_in_force::get().dot(bytes(a + i), bytes(b + i), length, p());
    sum %= Fp8::prime;
  }
  return Fp8(sum < 0 ? sum + Fp8::prime : sum);
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

}  // namespace zep::linalg
