// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/record.h"

#include <ostream>

#include "base/output.h"
#include "text/canonical_module.h"
#include "text/generators.h"
#include "text/invariants.h"
#include "text/points.h"
#include "text/strands.h"

namespace zep::text {

namespace {

void display_strands(std::ostream& out, const results& known) {
  if (known.strands.linid && known.strands.linom) {
    disp_linres(out, known);
  } else if (known.strands.linom) {
    disp_linom(out, known);
  } else if (known.strands.linid) {
    disp_linid(out, known);
  }
}

}  // namespace

void display(std::ostream& out, std::ostream& screen, const scheme& X) {
  const results& known = X.known();
  out << "scheme consists of " << X.s() << " points:\n";
  disp_scheme(out, X.P());
  out << "\n" << Line;
  if (known.bu_mo) {
    const hilbert_numbers& H = known.bu_mo->H;
    order_ideal(screen, *known.bu_mo);
    hilb_fct(out, H);
    delta_fct(out, H);
    sigma_X(out, H);
    delta_X(out, H);
    alpha_X(out, H);
  }
  if (known.sep) {
    is_CB(out, known.is_CB);
    is_ar_Go(out, known.is_ar_Go);
  }
  if (known.min_Ix) deg_min(out, *known.min_Ix);
  if (known.socle) disp_socle(out, *known.socle);
  if (has_generators(known.omega)) disp_omega(out, *known.omega);
  display_strands(out, known);
}

}  // namespace zep::text
