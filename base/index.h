// Indices.
#pragma once

#include <cstddef>

#include "base/floors.h"

namespace zep::base {

// An index as the standard containers want it. Requires i >= 0. (Indices are ints, so that -1 can
// say that there is none and differences make sense.)
constexpr std::size_t at(int i) { return static_cast<std::size_t>(i); }

}  // namespace zep::base
