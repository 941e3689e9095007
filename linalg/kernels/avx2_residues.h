// SPDX-License-Identifier: GPL-3.0-or-later
// Arithmetic modulo p on 32 bytes at a time: residues.h in words of avx2.h.
#pragma once

#include "linalg/kernels/avx2.h"
#include "linalg/kernels/residues.h"

namespace zep::linalg::avx2 {

// a + b mod p. Where the sum is below p the difference wraps to a larger byte; where it is not, the
// sum or the 255 it is bounded by is larger.
[[gnu::target("avx2")]] inline word sum(word a, word b, word p) {
  const word difference = _mm256_sub_epi8(_mm256_add_epi8(a, b), p);
  return _mm256_min_epu8(_mm256_adds_epu8(a, b), difference);
}

// a - b mod p: where b is larger, the difference has wrapped.
[[gnu::target("avx2")]] inline word difference(word a, word b, word p) {
  const word no_borrow = _mm256_cmpeq_epi8(_mm256_max_epu8(a, b), a);
  return _mm256_add_epi8(_mm256_sub_epi8(a, b), _mm256_andnot_si256(no_borrow, p));
}

// Operations on the elements of two rows. Those on one row get it twice.

// c * s
struct times {
  word p;
  word fraction;

  [[gnu::target("avx2")]] explicit times(factor c)
      : p(all_lanes(c.p)), fraction(all_lanes(c.fraction)) {}

  [[gnu::target("avx2")]] word operator()(word s, word /*s*/) const {
    const lanes x = widened(s);
    return _mm256_packus_epi16(of(x.low), of(x.high));
  }

 private:
  [[gnu::target("avx2")]] word of(word s) const {
    return _mm256_mulhi_epu16(_mm256_mullo_epi16(s, fraction), p);
  }
};

// d + c * s
struct plus_multiple {
  times c;
  word p;

  [[gnu::target("avx2")]] explicit plus_multiple(factor f) : c(f), p(all_bytes(f.p)) {}
  [[gnu::target("avx2")]] word operator()(word d, word s) const { return sum(d, c(s, s), p); }
};

struct plus {
  word p;
  [[gnu::target("avx2")]] word operator()(word d, word s) const { return sum(d, s, p); }
};

struct minus {
  word p;
  [[gnu::target("avx2")]] word operator()(word d, word s) const { return difference(d, s, p); }
};

// d + s where p = 2
struct plus_bits {
  [[gnu::target("avx2")]] word operator()(word d, word s) const { return _mm256_xor_si256(d, s); }
};

struct negation {
  word p;
  [[gnu::target("avx2")]] word operator()(word d, word /*d*/) const {
    return difference(_mm256_setzero_si256(), d, p);
  }
};

struct product_modulo {
  word p;
  word multiplier;
  word addend;
  __m128i shift;

  [[gnu::target("avx2")]] explicit product_modulo(divisor m)
      : p(all_lanes(m.p)),
        multiplier(all_lanes(m.multiplier)),
        addend(all_lanes(m.addend)),
        shift(_mm_cvtsi32_si128(m.shift)) {}

  [[gnu::target("avx2")]] word operator()(word a, word b) const {
    const lanes x = widened(a);
    const lanes y = widened(b);
    return _mm256_packus_epi16(of(x.low, y.low), of(x.high, y.high));
  }

 private:
  [[gnu::target("avx2")]] word of(word a, word b) const {
    const word x = _mm256_mullo_epi16(a, b);
    const word above = _mm256_mulhi_epu16(_mm256_add_epi16(x, addend), multiplier);
    return _mm256_sub_epi16(x, _mm256_mullo_epi16(_mm256_srl_epi16(above, shift), p));
  }
};

}  // namespace zep::linalg::avx2
