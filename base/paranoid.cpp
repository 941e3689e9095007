// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/paranoid.h"

#include <cstdlib>
#include <iostream>

namespace zep::base {

void invariant_broken(const char* invariant) {
  std::cerr << "\nbroken: " << invariant << "\n";
  std::abort();
}

}  // namespace zep::base
