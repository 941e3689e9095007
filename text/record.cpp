#include "text/record.h"

#include <iostream>

#include "base/output.h"
#include "points/ideal/gorenstein.h"
#include "points/ideal/minimal_generators.h"
#include "points/ideal/socle.h"
#include "points/module/canonical_module.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"
#include "points/walk/invariants.h"

namespace zep::points {

std::ostream& operator<<(std::ostream& out, scheme& X) {
  out << "scheme consists of " << X.s << " points:\n";
  disp_scheme(out, X);
  out << "\n" << Line;
  if (X.has_bu_mo) {
    order_ideal(std::cout, X);
    hilb_fct(out, X);
    delta_fct(out, X);
    sigma_X(out, X);
    delta_X(out, X);
    alpha_X(out, X);
  }
  if (X.sep == 1) {
    is_CB(out, X);
    is_ar_Go(out, X);
  }
  if (X.min_Ix) deg_min(out, X);
  if (X.socle) disp_socle(out, X);
  if (no_of_pr(X) != 0) disp_omega(out, X);
  if (X.linid != 0 && X.linom != 0) {
    disp_linres(out, X);
  } else if (X.linom != 0) {
    disp_linom(out, X);
  } else if (X.linid != 0) {
    disp_linid(out, X);
  }
  return out;
}

}  // namespace zep::points
