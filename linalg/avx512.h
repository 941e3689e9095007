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

namespace zep::avx512 {

using byte = std::uint8_t;
using word = __m512i;

[[gnu::target("avx512bw")]] inline word load(const byte* from) { return _mm512_loadu_si512(from); }

}  // namespace zep::avx512
