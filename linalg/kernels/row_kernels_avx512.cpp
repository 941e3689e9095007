// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/row_kernels.h"

namespace zep::linalg {

#if defined(__x86_64__) || defined(__i386__)

namespace {

// Longer words are no faster for single rows, but for long ones; and to tell these apart costs
// short ones, of which there are more, a twentieth of their time.
row_kernels with_longer_words_in_tiles(row_kernels kernels) {
  kernels.name = "AVX-512";
  kernels.add_to_tile = add_to_tile_with_avx512;
  return kernels;
}

}  // namespace

const row_kernels* avx512_kernels() {
  if (__builtin_cpu_supports("avx512bw") == 0 || avx2_kernels() == nullptr) return nullptr;
  static const row_kernels kernels = with_longer_words_in_tiles(*avx2_kernels());
  return &kernels;
}

#else

const row_kernels* avx512_kernels() { return nullptr; }

#endif

}  // namespace zep::linalg
