// SPDX-License-Identifier: GPL-3.0-or-later
// Vectors of polynomials as text.
#pragma once

#include <ostream>

#include "arith/polynomial.h"
#include "base/interrupt.h"

namespace zep::text {

// Prints component(0) .. component(n - 1) in brackets, in screen form, each on a line of its own.
template <class Component>
void show_vector(std::ostream& out, int n, Component component) {
  out << "[ ";
  int column = 2;
  for (int i = 0; i < n; ++i) {
    heed_interrupt();
    if (i > 0) out << ";\n";
    show(out, component(i), column);
    column = 0;
  }
  out << " ]\n";
}

// Writes them in file form, one a line.
template <class Component>
void put_vector(std::ostream& out, int n, Component component) {
  for (int i = 0; i < n; ++i) {
    heed_interrupt();
    component(i).put(out);
    out << "\n";
  }
}

}  // namespace zep::text
