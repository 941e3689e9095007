// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the linear strands as tables. Each function prints a table as it is, with zeros
// for what has not been computed, and Line.
#pragma once

#include <iosfwd>

#include "points/record/results.h"

namespace zep::text {

// That for I_X, that for w_R, and that for both.
void disp_linid(std::ostream& out, const results& known);
void disp_linom(std::ostream& out, const results& known);
void disp_linres(std::ostream& out, const results& known);

}  // namespace zep::text
