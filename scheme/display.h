// The whole record of a scheme in words.
#pragma once

#include <iosfwd>

#include "scheme/scheme.h"

namespace zep {

// Prints the points and every result that exists; computes nothing.
std::ostream& operator<<(std::ostream& out, scheme& X);

}  // namespace zep
