// The ring that a test computes in.
#pragma once

#include "arith/Fp8.h"
#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/output.h"

namespace zep::tests {

enum class term_order { deglex, degrevlex };

// Puts a characteristic, a dimension and a term order in force, with the output at column 0 of
// lines of 80 characters. Restores what the program starts with when it is destroyed, so that no
// test depends on another.
class ring_in_force {
 public:
  explicit ring_in_force(int p = 101, int n = 3, term_order order = term_order::degrevlex) {
    enforce(p, n, order);
  }
  ~ring_in_force() { enforce(101, 3, term_order::degrevlex); }
  ring_in_force(const ring_in_force&) = delete;
  ring_in_force& operator=(const ring_in_force&) = delete;

 private:
  static void enforce(int p, int n, term_order order) {
    Fp8::prime = p;
    Fp8::init();
    set_dimension(n);
    varstring = "XYZTabcdefghijklmnopqrstuvw";
    order == term_order::deglex ? use_deglex() : use_degrevlex();
    set_line_length(80);
    counter = 0;
  }
};

}  // namespace zep::tests
