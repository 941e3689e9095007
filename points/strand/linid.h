// SPDX-License-Identifier: GPL-3.0-or-later
// The linear strand of the vanishing ideal.
#pragma once

#include <functional>
#include <vector>

#include "base/reporter.h"
#include "points/ring/ideal.h"
#include "points/strand/form_vectors.h"

namespace zep::points {

// What is to be done with the vectors of a level, as soon as they are there.
using level_action = std::function<void(int level, const form_vectors& vectors)>;

// Follows the linear strand of the minimal graded free resolution of I_X: the minimal generators of
// least degree at level 0, the linear syzygies among these, the linear syzygies among those, and so
// on. `generators` are minimal ones, ascending by degree, alpha is their least degree. Calls
// act(level, vectors) for each level, tells its progress, and marks each syzygy candidate that is
// none. Returns the numbers of vectors of the levels, one for each affine variable, 0 where nothing
// is left; there may be more levels than that.
std::vector<int> linid(const ideal& generators, int alpha, reporter& to, const level_action& act);

}  // namespace zep::points
