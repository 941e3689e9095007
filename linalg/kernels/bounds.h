// SPDX-License-Identifier: GPL-3.0-or-later
// How much fits in a machine word before a reduction modulo p, for every p that Fp8 allows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/Fp8.h"

namespace zep::linalg {

constexpr std::uint32_t greatest_p = largest_prime;
constexpr std::uint32_t largest_element = greatest_p - 1;

// A product of two elements fits 16 bits, even with a third element added.
static_assert(largest_element * largest_element + largest_element <= 0xFFFF);

// An element times an error of at most p stays below 2^16: what `factor` is exact for.
static_assert(largest_element * greatest_p < 0x10000);

// A product plus 1, times an error of at most p / 2, stays below 2^(16 + t) where 2^t < p: what
// `divisor` is exact for. (With p <= 2^(t + 1) the left side is at most p^3 / 2 <= 2^(3 t + 2), so
// that smaller p leave more room.)
static_assert((largest_element * largest_element + 1) * (greatest_p / 2) < 1U << (16U + 7U));

// So many products of two elements, and no more, are added up before a reduction: their sum fits a
// signed 32-bit number, added to a remainder, also when p is subtracted from one factor of each.
constexpr std::size_t products_in_a_sum = std::size_t{1} << 15U;
static_assert(products_in_a_sum * greatest_p * largest_element + largest_element <= 0x7FFFFFFF);

// A float holds all integers up to this one.
constexpr std::uint32_t exact_in_a_float = 1U << 24U;

// So many products, and no more, are added to an element in a tile of a product of matrices: a
// float holds the sum exactly.
constexpr std::size_t products_in_a_tile = 256;
static_assert(products_in_a_tile * largest_element * largest_element + largest_element <
              exact_in_a_float);

}  // namespace zep::linalg
