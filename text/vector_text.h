// Vectors of polynomials as text.
#pragma once

#include <ostream>

#include "arith/polynomial.h"
#include "base/interrupt.h"
#include "base/output.h"

namespace zep::points {

// Prints component(0) .. component(n - 1) in brackets, in screen form, each on a line of its own.
template <class Component>
void show_vector(std::ostream& out, int n, Component component) {
  out << "[ ";
  counter = 2;
  for (int i = 0; i < n; ++i) {
    heed_interrupt();
    if (i > 0) out << ";\n";
    out << component(i);
    counter = 0;
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

}  // namespace zep::points
