// Separators.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Lets the separators, which bu_mo finds on its way, count as computed, and decides the
// Cayley-Bacharach and Gorenstein properties (`hilbert2`). Writes progress, and Line to standard
// output. Requires bu_mo; must not run twice on a scheme.
void sep(scheme& X);

// Runs bu_mo and sep unless they have run.
void need_sep(scheme& X);

// Prints the separators.
void separators(std::ostream& out, scheme& X);

}  // namespace zep::points
