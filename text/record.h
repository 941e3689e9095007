// SPDX-License-Identifier: GPL-3.0-or-later
// A set of points in words: its points, and in short what is known of it.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::text {

// Prints the points and, of the results that exist, the order ideal, numbers, verdicts and degrees:
// no Groebner basis, separators, beta matrix, generators or relations, which are long. The order
// ideal goes to the screen, at the moment when its turn has come, whatever `out` is; so a file that
// the record is written to goes on with the Hilbert function.
void display(std::ostream& out, std::ostream& screen, const scheme& X);

}  // namespace zep::text
