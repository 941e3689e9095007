// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/product_tile.h"

#if defined(__x86_64__) || defined(__i386__)

#include <cstring>

#include "linalg/kernels/avx2.h"
#include "linalg/kernels/float_reduction.h"

namespace zep::linalg {

namespace {

using avx2::load;
using avx2::word;

static_assert(tile_rows == 4 && tile_cols == 16);

// One row of a tile in 32-bit sums.
struct tile_row {
  word left;
  word right;
};

[[gnu::target("avx2")]] inline tile_row row_of(const std::uint8_t* c) {
  return {_mm256_cvtepu8_epi32(_mm256_castsi256_si128(load<8>(c))),
          _mm256_cvtepu8_epi32(_mm256_castsi256_si128(load<8>(c + 8)))};
}

// A pair of neighbours, repeated.
[[gnu::target("avx2")]] inline word pair_at(const std::int16_t* a) {
  std::int32_t pair = 0;
  std::memcpy(&pair, a, sizeof pair);
  return _mm256_set1_epi32(pair);
}

[[gnu::target("avx2")]] inline word elements_at(const std::int16_t* b) {
  return load<32>(reinterpret_cast<const std::uint8_t*>(b));
}

// Reduces sums: float_reduction.h says why that is right.
class reduction {
 public:
  [[gnu::target("avx2")]] explicit reduction(lane p)
      : p_(_mm256_set1_ps(static_cast<float>(p))),
        reciprocal_(_mm256_set1_ps(reciprocal_below(p))),
        p_in_lanes_(avx2::all_lanes(p)) {}

  [[gnu::target("avx2")]] void store(std::uint8_t* c, const tile_row& sums) const {
    word lanes = _mm256_packus_epi32(rest(sums.left), rest(sums.right));
    lanes = _mm256_min_epu16(lanes, _mm256_sub_epi16(lanes, p_in_lanes_));
    // Packing works in the two halves of a word apart.
    lanes = _mm256_permute4x64_epi64(lanes, 0xD8);
    avx2::store<16>(c, _mm256_packus_epi16(lanes, _mm256_permute2x128_si256(lanes, lanes, 1)));
  }

 private:
  [[gnu::target("avx2")]] word rest(word sums) const {
    const __m256 x = _mm256_cvtepi32_ps(sums);
    const __m256 quotient =
        _mm256_round_ps(_mm256_mul_ps(x, reciprocal_), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    return _mm256_cvtps_epi32(_mm256_sub_ps(x, _mm256_mul_ps(quotient, p_)));
  }

  __m256 p_;
  __m256 reciprocal_;
  word p_in_lanes_;
};

[[gnu::target("avx2")]] inline void add_products(word& sums, word a, word b) {
  sums = _mm256_add_epi32(sums, _mm256_madd_epi16(a, b));
}

}  // namespace

[[gnu::target("avx2")]] void add_to_tile_with_avx2(std::uint8_t* const* c, const std::int16_t* a,
                                                   const std::int16_t* b, std::size_t pairs,
                                                   lane p) {
  // All sums stay in registers.
  tile_row row0 = row_of(c[0]);
  tile_row row1 = row_of(c[1]);
  tile_row row2 = row_of(c[2]);
  tile_row row3 = row_of(c[3]);
  for (std::size_t k = 0; k < pairs; ++k, a += 2 * tile_rows, b += 2 * tile_cols) {
    const word left = elements_at(b);
    const word right = elements_at(b + tile_cols);
    add_products(row0.left, pair_at(a), left);
    add_products(row0.right, pair_at(a), right);
    add_products(row1.left, pair_at(a + 2), left);
    add_products(row1.right, pair_at(a + 2), right);
    add_products(row2.left, pair_at(a + 4), left);
    add_products(row2.right, pair_at(a + 4), right);
    add_products(row3.left, pair_at(a + 6), left);
    add_products(row3.right, pair_at(a + 6), right);
  }
  const reduction modulo_p(p);
  modulo_p.store(c[0], row0);
  modulo_p.store(c[1], row1);
  modulo_p.store(c[2], row2);
  modulo_p.store(c[3], row3);
}

}  // namespace zep::linalg

#endif
