// The canonical module.
#pragma once

#include <iosfwd>

#include "points/record/scheme.h"

namespace zep::points {

// Computes a minimal homogeneous presentation of the canonical module w_R, the dual over K[X_0] of
// the coordinate ring R (Bruns, Herzog: Cohen-Macaulay rings, theorem 3.3.7), and stores it in X.
// Reports its progress.
void omega(scheme& X);

// Makes sure that it exists. (For a scheme without points it is made every time.)
void need_omega(scheme& X);

// Prints the ranks and degrees of the presentation; computes it when it is not there.
void disp_omega(std::ostream& out, scheme& X);

// Prints the relations, column by column, and the generators; computes them when they are not
// there.
void disp_omegamat(std::ostream& out, scheme& X);

}  // namespace zep::points
