// SPDX-License-Identifier: GPL-3.0-or-later
// The innermost part of products of matrices: a small piece of the result, the tile.
//
// One factor of a tile is `tile_rows` rows of coefficients, the other one `tile_cols` columns of
// elements. Both are packed as 16-bit numbers, so that neighbours can be multiplied and added in
// one instruction:
//
//     a   a[0][0] a[0][1]  a[1][0] a[1][1]  ...    a[0][2] a[0][3]  a[1][2] a[1][3]  ...
//     b   b[0][0] b[1][0]  b[0][1] b[1][1]  ...    b[2][0] b[3][0]  b[2][1] b[3][1]  ...
//
// What is missing to a whole tile is zero.
#pragma once

#include <cstddef>
#include <cstdint>

#include "linalg/kernels/bounds.h"
#include "linalg/kernels/residues.h"

namespace zep::linalg {

// The sums of 4 x 16 elements fill half of the registers of AVX2, and leave the others to the
// factors. (Another shape means another packing, which combinations.cpp does.)
constexpr std::size_t tile_rows = 4;
constexpr std::size_t tile_cols = 16;

// Adds the product of the packed factors, with `pairs` pairs of products in each element, to
// c[0] .. c[tile_rows - 1], each tile_cols elements below p. Requires 2 * pairs <=
// products_in_a_tile.
using tile_kernel = void(std::uint8_t* const* c, const std::int16_t* a, const std::int16_t* b,
                         std::size_t pairs, lane p);

// Only for processors with AVX2, or AVX-512BW, and compiled for x86 only.
tile_kernel add_to_tile_with_avx2;
tile_kernel add_to_tile_with_avx512;

}  // namespace zep::linalg
