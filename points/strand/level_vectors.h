// SPDX-License-Identifier: GPL-3.0-or-later
// The vectors of a level, written out.
#pragma once

#include "points/strand/form_vectors.h"
#include "points/strand/strand_level.h"

namespace zep::points {

// The vectors of the next level: H, with coordinates, holds what level_syzygies finds for the level
// G of L, in a list that may have zero vectors; `vectors` are those of G. Their coordinates are
// read off the functionals. Those at X_0 follow from the others, as X_0 is no zero divisor: a
// syzygy is 0 at the multiple of each first term with X_0, too. (At level 0, where vectors are
// polynomials, at the multiple of each leading monomial with X_0; they are reduced there.)
form_vectors next_vectors(const syzygy_spaces& L, const strand_level& G,
                          const form_vectors& vectors, const strand_level& H);

// The coordinates that belong to triangular vectors whose terms are coordinates of the level: those
// of level 1 of the canonical module, over the generators of least degree. L is at level 0.
std::vector<row> coordinates_of_relations(const syzygy_spaces& L, const form_vectors& relations);

}  // namespace zep::points
