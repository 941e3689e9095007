#include "points/ideal/gorenstein.h"

#include <ostream>

#include "base/output.h"
#include "points/ideal/socle.h"

namespace zep::points {

namespace {

void decide_by_socle(scheme& X) {
  socle(X);
  X.is_ar_Go = X.socle->no_of_gens() == 1 ? 1 : 0;
  if (X.is_ar_Go == 1) X.is_CB = 1;
}

}  // namespace

void is_ar_Go(std::ostream& out, scheme& X) {
  if (X.sep == 0) decide_by_socle(X);
  out << (X.is_ar_Go == 1 ? "scheme is arithmetically Gorenstein\n"
                          : "scheme is NOT arithmetically Gorenstein\n")
      << Line;
}

}  // namespace zep::points
