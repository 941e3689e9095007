// SPDX-License-Identifier: GPL-3.0-or-later
// The linear strand of the vanishing ideal.
#pragma once

#include <functional>
#include <vector>

#include "base/reporter.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/ideal.h"
#include "points/ring/order_ideal.h"
#include "points/strand/form_vectors.h"

namespace zep::points {

// What is to be done with the vectors of a level, as soon as they are there.
using level_action = std::function<void(int level, const form_vectors& vectors)>;

// Follows the linear strand of the minimal graded free resolution of I_X: the minimal generators of
// least degree at level 0, the linear syzygies among these, the linear syzygies among those, and so
// on. `generators` are the minimal ones of X, A is its Artinian reduction. Calls act(level,
// vectors) for each level (without an action no vectors are written out, which is faster), tells
// its progress, and marks each syzygy candidate that is none. Returns the numbers of vectors of the
// levels, one for each affine variable, 0 where nothing is left; there may be more levels than
// that.
std::vector<int> linid(const ideal& generators, const order_ideal& X, const canonical_forms& A,
                       reporter& to, const level_action& act);

// The same pair by pair, for any minimal generators, ascending by degree, of least degree alpha.
std::vector<int> linid_by_pairs(const ideal& generators, int alpha, reporter& to,
                                const level_action& act);

}  // namespace zep::points
