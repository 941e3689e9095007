#include "scheme/ideal.h"

#include <ostream>

#include "arith/interrupt.h"

namespace zep {

std::ostream& operator<<(std::ostream& out, const ideal& I) {
  for (const polynomial& f : I.gen) {
    heed_interrupt();
    out << f << "\n";
  }
  return out;
}

}  // namespace zep
