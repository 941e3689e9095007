// SPDX-License-Identifier: GPL-3.0-or-later
// Generators in words: those of the vanishing ideal and those of the socle. Each function prints
// one result, and Line.
#pragma once

#include <iosfwd>

#include "points/ring/ideal.h"

namespace zep::text {

// The minimal generators, or how many there are in each degree.
void disp_min(std::ostream& out, const ideal& min_Ix);
void deg_min(std::ostream& out, const ideal& min_Ix);

// The generators of the socle, or their number, the type.
void disp_socle(std::ostream& out, const ideal& socle);
void typ(std::ostream& out, const ideal& socle);

}  // namespace zep::text
