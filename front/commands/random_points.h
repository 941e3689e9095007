// SPDX-License-Identifier: GPL-3.0-or-later
// Random point sets.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// `random`: reads an identifier and a number of points, and draws distinct points with coordinates
// in [range1, range2].
void random1(session& z);

// `random2`: the same, but the first points are fixed: (1:0:...:0) and the unit points.
void random2(session& z);

}  // namespace zep::front
