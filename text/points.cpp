// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/points.h"

#include <ostream>

#include "base/interrupt.h"
#include "base/output.h"
#include "points/walk/general_position.h"

namespace zep::text {

void disp_point(std::ostream& out, const matrix& P, int i) {
  out << "<1";
  for (const Fp8 x : P[i]) out << ":" << x;
  out << ">";
}

void disp_scheme(std::ostream& out, const matrix& P) {
  for (int i = 0; i < P.rows(); ++i) {
    heed_interrupt();
    disp_point(out, P, i);
  }
}

void lingenpos(std::ostream& out, const matrix& P) {
  out << (has_independent_subset(P) ? "scheme is in linearly general position\n"
                                    : "scheme is not in linearly general position\n")
      << Line;
}

}  // namespace zep::text
