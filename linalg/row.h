// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of field elements: the matter of every elimination.
#pragma once

#include <span>
#include <vector>

#include "arith/Fp8.h"

namespace zep::linalg {

// Contiguous elements below the prime: a row that owns them, and views of a row or a stretch of it,
// to be changed or only read. A view is valid as long as what it looks at.
using row = std::vector<Fp8>;
using row_view = std::span<Fp8>;
using const_row_view = std::span<const Fp8>;

}  // namespace zep::linalg
