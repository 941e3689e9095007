// The layout of everything that is printed: line length, separator line, output column.
#pragma once

#include <cstddef>
#include <limits>
#include <string>

#include "base/floors.h"

namespace zep::base {

// Line length. Long polynomials are broken before it, the separator line and the help follow it.
extern int LL;

// Separator line: LL - 1 dashes and a line end. Kept in step with LL by `set_line_length`.
extern std::string Line;

// Column that the output has reached. Whoever starts a line sets it; the polynomial inserter
// advances it and breaks the line between two terms.
extern int counter;

// Sets LL to `length` (at least 1) and cuts Line to it.
void set_line_length(int length);

// Writes n in decimal digits from `to` on, where there must be room for longest_number characters.
// Returns the end of what was written.
char* write_number(char* to, int n);
constexpr std::size_t longest_number = std::numeric_limits<int>::digits10 + 2;

}  // namespace zep::base
