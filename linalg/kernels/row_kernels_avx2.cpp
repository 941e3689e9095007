// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/row_kernels.h"

#if defined(__x86_64__) || defined(__i386__)

#include "linalg/kernels/avx2.h"
#include "linalg/kernels/avx2_residues.h"

namespace zep::linalg {

namespace {

using namespace avx2;

// Sets d to the operation on a and b, so many bytes at a time; n is at least that. The last piece
// may overlap the one before it, and is computed while d still has the old bytes: branches for what
// is left over would be mispredicted more often than not where rows are short.
template <std::size_t width, class Operation>
[[gnu::target("avx2")]] inline void in_pieces(byte* d, const byte* a, const byte* b, std::size_t n,
                                              Operation of) {
  const std::size_t behind = n - width;
  const word last = of(load<width>(a + behind), load<width>(b + behind));
  for (std::size_t i = 0; i < behind; i += width) {
    store<width>(d + i, of(load<width>(a + i), load<width>(b + i)));
  }
  store<width>(d + behind, last);
}

// Only for functions of this file: one with another target attribute would not get it inlined,
// which costs more than it saves. A variant that leaves short rows to this one calls its kernels.
template <class Operation>
[[gnu::target("avx2")]] inline void apply(byte* d, const byte* a, const byte* b, std::size_t n,
                                          Operation of) {
  if (n >= 32) return in_pieces<32>(d, a, b, n, of);
  if (n >= 16) return in_pieces<16>(d, a, b, n, of);
  if (n >= 8) return in_pieces<8>(d, a, b, n, of);
  if (n >= 4) return in_pieces<4>(d, a, b, n, of);
  if (n > 0) in_pieces<1>(d, a, b, n, of);
}

[[gnu::target("avx2")]] void axpy(byte* d, const byte* s, std::size_t n, factor c) {
  apply(d, d, s, n, plus_multiple(c));
}

[[gnu::target("avx2")]] void add(byte* d, const byte* s, std::size_t n, lane p) {
  apply(d, d, s, n, plus{all_bytes(p)});
}

[[gnu::target("avx2")]] void subtract(byte* d, const byte* s, std::size_t n, lane p) {
  apply(d, d, s, n, minus{all_bytes(p)});
}

[[gnu::target("avx2")]] void add_bits(byte* d, const byte* s, std::size_t n) {
  apply(d, d, s, n, plus_bits{});
}

[[gnu::target("avx2")]] void scale(byte* d, std::size_t n, factor c) {
  apply(d, d, d, n, times(c));
}

[[gnu::target("avx2")]] void negate(byte* d, std::size_t n, lane p) {
  apply(d, d, d, n, negation{all_bytes(p)});
}

[[gnu::target("avx2")]] void pointwise_product(byte* d, const byte* a, const byte* b, std::size_t n,
                                               divisor m) {
  apply(d, a, b, n, product_modulo(m));
}

// Sums of two products at a time, in eight 32-bit numbers.
struct sum_of_products {
  const byte* a;
  const byte* b;
  word sums;

  template <std::size_t width>
  [[gnu::target("avx2")]] void add(std::size_t i) {
    const lanes x = widened(load<width>(a + i));
    const lanes y = widened(load<width>(b + i));
    sums = _mm256_add_epi32(sums, _mm256_madd_epi16(x.low, y.low));
    if constexpr (width > 8) sums = _mm256_add_epi32(sums, _mm256_madd_epi16(x.high, y.high));
  }
};

// Calls sum.add<width> for pieces that make up 0 .. n-1.
[[gnu::target("avx2")]] inline void add_pieces(std::size_t n, sum_of_products& sum) {
  std::size_t i = 0;
  for (; i + 32 <= n; i += 32) sum.add<32>(i);
  if (i + 16 <= n) {
    sum.add<16>(i);
    i += 16;
  }
  if (i + 8 <= n) {
    sum.add<8>(i);
    i += 8;
  }
  if (i + 4 <= n) {
    sum.add<4>(i);
    i += 4;
  }
  for (; i < n; ++i) sum.add<1>(i);
}

[[gnu::target("avx2")]] inline std::int32_t total(word x) {
  __m128i y = _mm_add_epi32(_mm256_castsi256_si128(x), _mm256_extracti128_si256(x, 1));
  y = _mm_add_epi32(y, _mm_unpackhi_epi64(y, y));
  y = _mm_add_epi32(y, _mm_shuffle_epi32(y, 1));
  return _mm_cvtsi128_si32(y);
}

[[gnu::target("avx2")]] std::int32_t dot(const byte* a, const byte* b, std::size_t n, lane /*p*/) {
  sum_of_products sum{a, b, _mm256_setzero_si256()};
  add_pieces(n, sum);
  return total(sum.sums);
}

constexpr row_kernels kernels = {.name = "AVX2",
                                 .axpy = axpy,
                                 .add = add,
                                 .subtract = subtract,
                                 .add_bits = add_bits,
                                 .scale = scale,
                                 .negate = negate,
                                 .pointwise_product = pointwise_product,
                                 .dot = dot,
                                 .add_to_tile = add_to_tile_with_avx2};

}  // namespace

const row_kernels* avx2_kernels() {
  return __builtin_cpu_supports("avx2") != 0 ? &kernels : nullptr;
}

}  // namespace zep::linalg

#else

namespace zep::linalg {

const row_kernels* avx2_kernels() { return nullptr; }

}  // namespace zep::linalg

#endif
