// SPDX-License-Identifier: GPL-3.0-or-later
// Points typed at the terminal or read from a file.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// `get`: reads an identifier, a number of points and the points, echoing each of them.
void get_scheme(session& z);

// `scheme`: reads an identifier and the name of a point file, and the points from it.
//
// A point file holds h = dim + 1, the number of points, and h rational numbers a point, separated
// by white space; what follows is ignored.
void create(session& z);

}  // namespace zep::front
