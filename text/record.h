// A scheme in words: its points, and in short what is known of it.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Prints the points and, of the results that exist, the order ideal, numbers, verdicts and degrees:
// no Groebner basis, separators, beta matrix, generators or relations, which are long. The order
// ideal goes to standard output, whatever `out` is; so a file that it is written to goes on with
// the Hilbert function. Computes nothing.
std::ostream& operator<<(std::ostream& out, scheme& X);

}  // namespace zep::points
