// SPDX-License-Identifier: GPL-3.0-or-later
// The canonical module in words. Each function prints one side of a presentation, and Line.
#pragma once

#include <iosfwd>

#include "points/module/presentation.h"

namespace zep::text {

// Ranks and degrees.
void disp_omega(std::ostream& out, const presentation& w_R);

// The relations, column by column, and the generators.
void disp_omegamat(std::ostream& out, const presentation& w_R);

}  // namespace zep::text
