// A scheme in words: its points, and in short what is known of it.
#pragma once

#include <iosfwd>

#include "scheme/scheme.h"

namespace zep {

// Prints the points and, of the results that exist, the order ideal, numbers, verdicts and degrees:
// no Groebner basis, separators, beta matrix, generators or relations, which are long. Computes
// nothing.
std::ostream& operator<<(std::ostream& out, scheme& X);

}  // namespace zep
