// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/product_tile.h"

#if defined(__x86_64__) || defined(__i386__)

// The compiler takes the undefined parts of some words for mistakes in its own header.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#include <immintrin.h>
#pragma GCC diagnostic pop

#include <cstring>

#include "linalg/kernels/float_reduction.h"

namespace zep::linalg {

namespace {

using byte = std::uint8_t;
// A row of a tile, in 32-bit sums.
using word = __m512i;

static_assert(tile_rows == 4 && tile_cols == 16);

[[gnu::target("avx512bw")]] inline word row_of(const byte* c) {
  return _mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(c)));
}

[[gnu::target("avx512bw")]] inline word elements_at(const std::int16_t* b) {
  return _mm512_loadu_si512(b);
}

// Adds the products of a pair of neighbours with all elements.
[[gnu::target("avx512bw")]] inline void add_products(word& sums, const std::int16_t* a, word b) {
  std::int32_t pair = 0;
  std::memcpy(&pair, a, sizeof pair);
  sums = _mm512_add_epi32(sums, _mm512_madd_epi16(_mm512_set1_epi32(pair), b));
}

// Reduces sums: float_reduction.h says why that is right.
class reduction {
 public:
  [[gnu::target("avx512bw")]] explicit reduction(lane p)
      : p_(_mm512_set1_ps(static_cast<float>(p))),
        reciprocal_(_mm512_set1_ps(reciprocal_below(p))),
        p_as_integer_(_mm512_set1_epi32(p)) {}

  [[gnu::target("avx512bw")]] void store(byte* c, word sums) const {
    const __m512 x = _mm512_cvtepi32_ps(sums);
    const __m512 quotient =
        _mm512_roundscale_ps(_mm512_mul_ps(x, reciprocal_), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    const word rest = _mm512_cvtps_epi32(_mm512_sub_ps(x, _mm512_mul_ps(quotient, p_)));
    const word reduced = _mm512_min_epu32(rest, _mm512_sub_epi32(rest, p_as_integer_));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(c), _mm512_cvtepi32_epi8(reduced));
  }

 private:
  __m512 p_;
  __m512 reciprocal_;
  word p_as_integer_;
};

}  // namespace

[[gnu::target("avx512bw")]] void add_to_tile_with_avx512(byte* const* c, const std::int16_t* a,
                                                         const std::int16_t* b, std::size_t pairs,
                                                         lane p) {
  // All sums stay in registers.
  word row0 = row_of(c[0]);
  word row1 = row_of(c[1]);
  word row2 = row_of(c[2]);
  word row3 = row_of(c[3]);
  for (std::size_t k = 0; k < pairs; ++k, a += 2 * tile_rows, b += 2 * tile_cols) {
    const word elements = elements_at(b);
    add_products(row0, a, elements);
    add_products(row1, a + 2, elements);
    add_products(row2, a + 4, elements);
    add_products(row3, a + 6, elements);
  }
  const reduction modulo_p(p);
  modulo_p.store(c[0], row0);
  modulo_p.store(c[1], row1);
  modulo_p.store(c[2], row2);
  modulo_p.store(c[3], row3);
}

}  // namespace zep::linalg

#endif
