#include "points/ring/ideal.h"

#include <ostream>

#include "base/interrupt.h"

namespace zep::points {

std::ostream& operator<<(std::ostream& out, const ideal& I) {
  for (const polynomial& f : I.gen) {
    heed_interrupt();
    out << f << "\n";
  }
  return out;
}

}  // namespace zep::points
