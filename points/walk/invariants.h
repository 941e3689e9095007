// What `bu_mo` has found, but for the separators, and the Cayley-Bacharach verdict, in words: each
// function makes sure that the result exists, prints it to `out` and ends with Line.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

void alpha_X(std::ostream& out, scheme& X);
void sigma_X(std::ostream& out, scheme& X);
void delta_X(std::ostream& out, scheme& X);

// H(n) and delta H(n), up to the degree from which H is constant.
void hilb_fct(std::ostream& out, scheme& X);
void delta_fct(std::ostream& out, scheme& X);

// The Cayley-Bacharach verdict. Asks for the separators unless the property is known to hold.
void is_CB(std::ostream& out, scheme& X);

// The reduced Groebner basis of I(X).
void groebner(std::ostream& out, scheme& X);

void order_ideal(std::ostream& out, scheme& X);

}  // namespace zep::points
