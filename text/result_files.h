// SPDX-License-Identifier: GPL-3.0-or-later
// Results as text files, to keep or to use elsewhere.
//
// The files hold one item a line: a number of rows, a number of columns, and the entries, column by
// column. Only the matrix is written row by row, which is the transposed matrix.
#pragma once

#include <iosfwd>

#include "linalg/matrix.h"
#include "points/module/presentation.h"
#include "points/ring/ideal.h"
#include "points/ring/order_ideal.h"

namespace zep::text {

// The points, the rows of P, with all their coordinates.
void put_points(std::ostream& out, const matrix& P);

void put_matrix(std::ostream& out, const matrix& m);

// Rows of polynomials: the separators, the Groebner basis, generators.
void put_separators(std::ostream& out, const points::order_ideal& X);
void put_groebner(std::ostream& out, const points::order_ideal& X);
void put_generators(std::ostream& out, const ideal& I);

// The relations among the generators of the canonical module.
void put_presentation(std::ostream& out, const presentation& w_R);

}  // namespace zep::text
