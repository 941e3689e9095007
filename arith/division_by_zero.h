// The one arithmetic fault.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::arith {

// Says on standard output that `field` ("Fp", "Fp8") divided by zero, and ends the process with
// status 1.
[[noreturn]] void division_by_zero(std::string_view field);

}  // namespace zep::arith
