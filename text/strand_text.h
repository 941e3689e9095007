// SPDX-License-Identifier: GPL-3.0-or-later
// The vectors of a linear strand on screen and in files. Zero vectors are left out, and where there
// are no others nothing is written at all.
#pragma once

#include <iosfwd>
#include <string_view>

#include "points/strand/form_vectors.h"

namespace zep::text {

// Prints each vector in brackets.
void show_vectors(std::ostream& out, const form_vectors& vectors);

// Writes the length of the vectors, their number, and their components, one a line.
void put_vectors(std::ostream& out, const form_vectors& vectors);

// The same under a heading: the matrix with this number of the resolution of the module.
void put_matrix(std::ostream& out, int number, std::string_view module,
                const form_vectors& vectors);

}  // namespace zep::text
