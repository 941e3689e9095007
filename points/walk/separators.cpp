#include "points/walk/separators.h"

#include <iostream>

#include "arith/Fp.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "base/reporter.h"
#include "points/record/consistency.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/hilbert.h"

namespace zep::points {

void sep(scheme& X) {
  const progress countdown("calculating biorthogonal sequence ...\n");
  countdown.count_down(X.s);
  countdown.end_line();
  std::cout << Line;
  hilbert2(X);
  X.sep = 1;
  ensure_consistent(X);
}

void need_sep(scheme& X) {
  need_bu_mo(X);
  if (X.sep == 0) sep(X);
}

void separators(std::ostream& out, scheme& X) {
  need_sep(X);
  out << "separators of X : \n";
  for (int i = 0; i < X.s; ++i) {
    heed_interrupt();
    counter = len(i + 1) + 4;
    out << "f" << i + 1 << " = " << separator_of(X, i) << "\n";
  }
  out << Line;
}

}  // namespace zep::points
