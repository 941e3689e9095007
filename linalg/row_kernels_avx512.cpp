#include "linalg/row_kernels.h"

#if defined(__x86_64__) || defined(__i386__)

#include "linalg/avx512.h"

namespace zep {

namespace {

using namespace avx512;

constexpr std::size_t width = sizeof(word);

// Words of 64 bytes pay from this length on: measured by the benchmark of axpy.
constexpr std::size_t long_enough = 512;
static_assert(long_enough >= 2 * width);

// d + c * s, as avx2::plus_multiple does it.
struct plus_multiple {
  word p;
  word fraction;
  word p_in_bytes;

  [[gnu::target("avx512bw")]] explicit plus_multiple(factor c)
      : p(all_lanes(c.p)), fraction(all_lanes(c.fraction)), p_in_bytes(all_bytes(c.p)) {}

  [[gnu::target("avx512bw")]] word operator()(word d, word s) const {
    const word zero = _mm512_setzero_si512();
    const word x = _mm512_packus_epi16(multiple(_mm512_unpacklo_epi8(s, zero)),
                                       multiple(_mm512_unpackhi_epi8(s, zero)));
    const word difference = _mm512_sub_epi8(_mm512_add_epi8(d, x), p_in_bytes);
    return _mm512_min_epu8(_mm512_adds_epu8(d, x), difference);
  }

 private:
  [[gnu::target("avx512bw")]] word multiple(word s) const {
    return _mm512_mulhi_epu16(_mm512_mullo_epi16(s, fraction), p);
  }
};

// In long rows whole words of d, at places where words are stored fast, lie between the first and
// the last word. These may overlap them, and are computed while d still has the old bytes.
[[gnu::target("avx512bw")]] void axpy(byte* d, const byte* s, std::size_t n, factor c) {
  if (n < long_enough) return axpy_with_avx2(d, s, n, c);
  const plus_multiple of(c);
  const std::size_t behind = n - width;
  const word first = of(load(d), load(s));
  const word last = of(load(d + behind), load(s + behind));
  const std::size_t aligned = width - reinterpret_cast<std::uintptr_t>(d) % width;
  for (std::size_t i = aligned; i < behind; i += width) {
    store(d + i, of(load(d + i), load(s + i)));
  }
  store(d, first);
  store(d + behind, last);
}

// Sums and differences gain nothing from longer words, and the others are left as they are.
row_kernels improved(row_kernels kernels) {
  kernels.name = "AVX-512";
  kernels.axpy = axpy;
  kernels.add_to_tile = add_to_tile_with_avx512;
  return kernels;
}

}  // namespace

const row_kernels* avx512_kernels() {
  if (__builtin_cpu_supports("avx512bw") == 0 || avx2_kernels() == nullptr) return nullptr;
  static const row_kernels kernels = improved(*avx2_kernels());
  return &kernels;
}

}  // namespace zep

#else

namespace zep {

const row_kernels* avx512_kernels() { return nullptr; }

}  // namespace zep

#endif
