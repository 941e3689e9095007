// The operations on rows that every elimination is made of. One place to make them faster.
//
// A row is n contiguous elements below the prime. Rows of one call do not overlap unless said.
// The result is the same, byte for byte, as that of the operators of Fp8.
#pragma once

#include <cstddef>

#include "arith/Fp8.h"

namespace zep::linalg {

// Sets d to d + c * s.
void axpy(Fp8* d, const Fp8* s, Fp8 c, std::size_t n);

// Sets d to c * d.
void scale(Fp8* d, Fp8 c, std::size_t n);

// Sets d to the elementwise product of a and b; d may be a or b.
void pointwise_product(Fp8* d, const Fp8* a, const Fp8* b, std::size_t n);

// The sum of a[i] * b[i]; a and b may be the same.
Fp8 dot(const Fp8* a, const Fp8* b, std::size_t n);

// Position of the first non-zero element, n if there is none.
std::size_t first_nonzero(const Fp8* s, std::size_t n);

}  // namespace zep::linalg
