// SPDX-License-Identifier: GPL-3.0-or-later
// The one arithmetic fault.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::arith {

// Thrown where a divisor has no inverse, by the field that noticed, "Fp" or "Fp8". Only a number
// that is read can bring it about: no computation divides by zero. It is no std::exception: whoever
// reads numbers has to know of it.
struct division_by_zero {
  std::string_view field;
};

}  // namespace zep::arith
