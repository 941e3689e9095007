// SPDX-License-Identifier: GPL-3.0-or-later
// Subsets of variables: the bases of the exterior powers.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "arith/ring.h"

namespace zep::points {

// A set of variables, given by their numbers below max_variables as bits.
using subset = std::uint32_t;
static_assert(max_variables < 32);

inline bool contains(subset T, int v) { return (T >> static_cast<unsigned>(v) & 1U) != 0; }
inline subset single(int v) { return subset{1} << static_cast<unsigned>(v); }
inline subset with(subset T, int v) { return T | single(v); }
inline subset without(subset T, int v) { return T & ~single(v); }

inline int size(subset T) { return std::popcount(T); }

// The largest element, -1 if there is none.
inline int greatest(subset T) { return std::bit_width(T) - 1; }

// The smallest element. Requires that there is one.
inline int least(subset T) { return std::countr_zero(T); }

// Number of elements below v.
inline int no_of_smaller(subset T, int v) { return size(T & (single(v) - 1)); }

// "n choose k", 0 unless 0 <= k <= n. Requires that it fits, times k.
std::int64_t binomial(int n, int k);

// The position of T among the sets of its size, the one with the smaller greatest element first, of
// equal ones that with the smaller next one, and so on. So those within 0 .. n-1 come first.
std::size_t position_of(subset T);

// The sets of i elements below n <= max_variables, in this order; none unless 0 <= i <= n.
std::vector<subset> subsets(int n, int i);

}  // namespace zep::points
