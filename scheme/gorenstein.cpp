#include "scheme/gorenstein.h"

#include <ostream>

#include "arith/output.h"

namespace zep {

void is_ar_Go(std::ostream& out, scheme& X) {
  if (X.sep == 0) {
    out << "is_gor is not available yet\n";
    return;
  }
  out << (X.is_ar_Go == 1 ? "scheme is arithmetically Gorenstein\n"
                          : "scheme is NOT arithmetically Gorenstein\n")
      << Line;
}

}  // namespace zep
