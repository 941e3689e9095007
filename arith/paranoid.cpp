#include "arith/paranoid.h"

#include <cstdlib>
#include <iostream>

namespace zep {

void invariant_broken(const char* invariant) {
  std::cerr << "\nbroken: " << invariant << "\n";
  std::abort();
}

}  // namespace zep
