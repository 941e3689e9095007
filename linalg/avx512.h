// Words of 64 bytes, for the variants of kernels that are written for processors with AVX-512BW.
//
// Only functions with the target attribute below may use them, and only x86 has them; the rest of
// the program runs without.
#pragma once

// The compiler takes the undefined parts of some words for mistakes in its own header.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#include <immintrin.h>
#pragma GCC diagnostic pop

#include <cstdint>

#include "linalg/residues.h"

namespace zep::avx512 {

using byte = std::uint8_t;
using word = __m512i;

[[gnu::target("avx512bw")]] inline word load(const byte* from) { return _mm512_loadu_si512(from); }

[[gnu::target("avx512bw")]] inline void store(byte* to, word x) { _mm512_storeu_si512(to, x); }

[[gnu::target("avx512bw")]] inline word all_lanes(lane x) {
  return _mm512_set1_epi16(static_cast<short>(x));
}

[[gnu::target("avx512bw")]] inline word all_bytes(lane x) {
  return _mm512_set1_epi8(static_cast<char>(x));
}

}  // namespace zep::avx512
