// SPDX-License-Identifier: GPL-3.0-or-later
// Products modulo p in 16-bit lanes, without a division and without a comparison.
//
// A lane is a 16-bit number, of which a vector instruction takes many side by side. The constants
// are lanes too. Keep them so in every signature: where one comes from an int, the compiler may
// widen a loop to 32 bits, at a third of the speed.
#pragma once

#include <bit>
#include <cstdint>

#include "arith/Fp8.h"
#include "linalg/kernels/bounds.h"

namespace zep::linalg {

using lane = std::uint16_t;

// The lower and the upper half of a product of two lanes.
constexpr lane low_half(lane a, lane b) {
  return static_cast<lane>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}
constexpr lane high_half(lane a, lane b) {
  return static_cast<lane>((static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b)) >> 16U);
}

// A fixed c < p to multiply with: c / p as a binary fraction, rounded up to 16 digits.
//
// Let fraction * p = c * 2^16 + e. For s < p, with c * s = k * p + r and 0 <= r < p,
//   s * fraction = k * 2^16 + (r * 2^16 + s * e) / p.
// The last term is below 2^16, and times p it has the upper half r, as long as 0 <= s * e < 2^16;
// and 0 <= e <= p by the choice of the fraction.
struct factor {
  lane p;
  lane c;
  lane fraction;

  // The factor c in the characteristic in force. The reciprocal is too small by at most 1, which
  // changes c * 2^16 / p by at most c / 2^16: times p, by less than 1, so that e > -1.
  static factor of(Fp8 c) {
    const std::uint64_t scaled = std::uint64_t{c.value()} * Fp8::reciprocal;
    return {static_cast<lane>(Fp8::prime), c.value(), static_cast<lane>((scaled >> 16U) + 1)};
  }

  // The factor p - c, for c > 0: (2^16 + 1 - fraction) * p = (p - c) * 2^16 + p - e, so its error
  // is p - e; the 2^16 is lost in the lane.
  constexpr factor negative() const {
    return {p, static_cast<lane>(p - c), static_cast<lane>(1 - fraction)};
  }
};

// c * s mod p for s < p and the fraction of a factor c, which itself is not needed.
constexpr lane product(lane s, lane p, lane fraction) {
  return high_half(low_half(s, fraction), p);
}

// A fixed p to divide products of two elements by: x / p = (x + addend) * multiplier / 2^(16 + t),
// rounded down, where 2^t < p <= 2^(t + 1).
//
// Let N = 2^(16 + t), q = floor(N / p) and e = N - q * p.
// Where 0 < e <= p / 2 the multiplier is q and the addend 1: (x + 1) * q / N is below (x + 1) / p,
// by (x + 1) * e / N <= 1 p-ths.
// Otherwise the multiplier is q + 1 and the addend 0: x * (q + 1) / N is not below x / p, and above
// it by x * (p - e) / N < 1 p-ths.
// Neither passes an integer. For a power of two the reciprocal makes q too small by 1, so that
// e = p and the second case is exact.
struct divisor {
  lane p;
  lane multiplier;
  lane addend;
  lane shift;

  // The characteristic in force.
  static divisor current() {
    const auto p = static_cast<std::uint32_t>(Fp8::prime);
    const auto t = static_cast<std::uint32_t>(std::bit_width(p - 1)) - 1;
    const std::uint32_t q = Fp8::reciprocal >> (16 - t);
    const bool rounded_down = 2 * ((1U << (16 + t)) - q * p) <= p;
    return {static_cast<lane>(p), static_cast<lane>(rounded_down ? q : q + 1),
            static_cast<lane>(rounded_down ? 1 : 0), static_cast<lane>(t)};
  }
};

// x mod p for a product x of two elements.
constexpr lane remainder(lane x, divisor m) {
  const lane above = high_half(static_cast<lane>(x + m.addend), m.multiplier);
  const auto quotient = static_cast<lane>(above >> m.shift);
  return static_cast<lane>(x - low_half(quotient, m.p));
}

}  // namespace zep::linalg
