#include "arith/division_by_zero.h"

#include <cstdlib>
#include <iostream>

namespace zep::arith {

void division_by_zero(std::string_view field) {
  std::cout << "\n" << field << ": division by zero\n" << std::flush;
  std::exit(1);
}

}  // namespace zep::arith
