// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of everything that is printed.
#pragma once

#include <cstddef>
#include <limits>
#include <string_view>

#include "base/floors.h"

namespace zep::base {

// Line length. Long polynomials are broken before it, the separator line and the help follow it.
inline constexpr int LL = 80;

// Separator line: LL - 1 dashes and a line end.
inline constexpr std::string_view Line =
    "-------------------------------------------------------------------------------\n";
static_assert(Line.size() == LL);

// Writes n in decimal digits from `to` on, where there must be room for longest_number characters.
// Returns the end of what was written.
char* write_number(char* to, int n);
inline constexpr std::size_t longest_number = std::numeric_limits<int>::digits10 + 2;

}  // namespace zep::base
