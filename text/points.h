// SPDX-License-Identifier: GPL-3.0-or-later
// Points in words.
#pragma once

#include <iosfwd>

#include "linalg/matrix.h"

namespace zep::text {

// Prints one point, row i of P, as <1:2:0>.
void disp_point(std::ostream& out, const matrix& P, int i);

// Prints the points, with nothing between them.
void disp_scheme(std::ostream& out, const matrix& P);

// Prints the verdict on linearly general position, and Line.
void lingenpos(std::ostream& out, const matrix& P);

}  // namespace zep::text
