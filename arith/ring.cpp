#include "arith/ring.h"

namespace zep::arith {

int dim = 3;
int proj = 4;
std::string varstring = "XYZTabcdefghijklmnopqrstuvw";

void set_dimension(int n) {
  dim = n;
  proj = n + 1;
}

}  // namespace zep::arith
