// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/row_operations.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/paranoid.h"
#include "linalg/kernels/bounds.h"
#include "linalg/kernels/residues.h"
#include "linalg/kernels/row_kernels.h"

namespace zep::linalg {

namespace {

const std::uint8_t* bytes(const_row_view s) {
  return reinterpret_cast<const std::uint8_t*>(s.data());
}
std::uint8_t* bytes(row_view d) { return reinterpret_cast<std::uint8_t*>(d.data()); }

lane p() { return static_cast<lane>(Fp8::prime); }

// Whether c is p - 1: multiplying by it needs no product.
bool is_minus_one(Fp8 c) { return c.value() + 1 == Fp8::prime; }

void ensure_one_length(const_row_view a, const_row_view b) {
  ensure("rows of one call have one length", [&] { return a.size() == b.size(); });
}

}  // namespace

void axpy(row_view d, const_row_view s, Fp8 c) {
  ensure_one_length(d, s);
  if (c == 0) return;
  const row_kernels& kernels = kernels_in_force::get();
  if (Fp8::prime == 2) return kernels.add_bits(bytes(d), bytes(s), d.size());
  if (c == 1) return kernels.add(bytes(d), bytes(s), d.size(), p());
  if (is_minus_one(c)) return kernels.subtract(bytes(d), bytes(s), d.size(), p());
  kernels.axpy(bytes(d), bytes(s), d.size(), factor::of(c));
}

void scale(row_view d, Fp8 c) {
  if (c == 1) return;
  if (c == 0) {
    std::fill(d.begin(), d.end(), Fp8(0));
  } else if (is_minus_one(c)) {
    kernels_in_force::get().negate(bytes(d), d.size(), p());
  } else {
    kernels_in_force::get().scale(bytes(d), d.size(), factor::of(c));
  }
}

void pointwise_product(row_view d, const_row_view a, const_row_view b) {
  ensure_one_length(d, a);
  ensure_one_length(d, b);
  kernels_in_force::get().pointwise_product(bytes(d), bytes(a), bytes(b), d.size(),
                                            divisor::current());
}

Fp8 dot(const_row_view a, const_row_view b) {
  ensure_one_length(a, b);
  int sum = 0;
  for (std::size_t i = 0; i < a.size(); i += products_in_a_sum) {
    const std::size_t length = std::min(products_in_a_sum, a.size() - i);
    sum += kernels_in_force::get().dot(bytes(a.subspan(i)), bytes(b.subspan(i)), length, p());
    sum %= Fp8::prime;
  }
  return Fp8(sum < 0 ? sum + Fp8::prime : sum);
}

std::size_t first_nonzero(const_row_view s) {
  std::size_t i = 0;
  for (std::uint64_t word = 0; i + sizeof word <= s.size(); i += sizeof word) {
    std::memcpy(&word, s.data() + i, sizeof word);
    if (word != 0) break;
  }
  while (i < s.size() && s[i] == 0) ++i;
  return i;
}

}  // namespace zep::linalg
