// SPDX-License-Identifier: GPL-3.0-or-later
// Words of 32 bytes, for the variants of kernels that are written for processors with AVX2.
//
// Only functions with the target attribute below may use them, and only x86 has them; the rest of
// the program runs without.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "linalg/kernels/residues.h"

namespace zep::linalg::avx2 {

using byte = std::uint8_t;
using word = __m256i;

// The first `width` of the bytes; the others are zero when they are loaded.
template <std::size_t width>
[[gnu::target("avx2")]] inline word load(const byte* from) {
  if constexpr (width == 32) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
  } else if constexpr (width == 16) {
    return _mm256_zextsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(from)));
  } else if constexpr (width == 8) {
    return _mm256_zextsi128_si256(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(from)));
  } else {
    std::uint32_t few = 0;
    std::memcpy(&few, from, width);
    return _mm256_zextsi128_si256(_mm_cvtsi32_si128(static_cast<int>(few)));
  }
}

template <std::size_t width>
[[gnu::target("avx2")]] inline void store(byte* to, word x) {
  const __m128i low = _mm256_castsi256_si128(x);
  if constexpr (width == 32) {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), x);
  } else if constexpr (width == 16) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(to), low);
  } else if constexpr (width == 8) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(to), low);
  } else {
    const int few = _mm_cvtsi128_si32(low);
    std::memcpy(to, &few, width);
  }
}

[[gnu::target("avx2")]] inline word all_lanes(lane x) {
  return _mm256_set1_epi16(static_cast<short>(x));
}

[[gnu::target("avx2")]] inline word all_bytes(lane x) {
  return _mm256_set1_epi8(static_cast<char>(x));
}

// The bytes of a word as lanes, in two words. The two parts are not the two halves of the bytes,
// but what packing the lanes again puts where it was.
struct lanes {
  word low;
  word high;
};

[[gnu::target("avx2")]] inline lanes widened(word x) {
  const word zero = _mm256_setzero_si256();
  return {_mm256_unpacklo_epi8(x, zero), _mm256_unpackhi_epi8(x, zero)};
}

}  // namespace zep::linalg::avx2
