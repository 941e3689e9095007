// The arithmetically-Gorenstein verdict.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Prints the verdict and Line. Without separators the socle decides: X is arithmetically Gorenstein
// exactly when it has one generator, and then it has the Cayley-Bacharach property too.
void is_ar_Go(std::ostream& out, scheme& X);

}  // namespace zep::points
