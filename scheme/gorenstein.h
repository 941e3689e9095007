// The arithmetically-Gorenstein verdict.
#pragma once

#include <iosfwd>

#include "scheme/scheme.h"

namespace zep {

// Prints the verdict and Line. Answers once the separators exist.
void is_ar_Go(std::ostream& out, scheme& X);

}  // namespace zep
