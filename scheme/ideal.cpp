#include "scheme/ideal.h"

#include <ostream>

namespace zep {

std::ostream& operator<<(std::ostream& out, const ideal& I) {
  for (const polynomial& f : I.gen) out << f << "\n";
  return out;
}

}  // namespace zep
