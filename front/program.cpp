#include "front/program.h"

#include <iostream>

#include "arith/output.h"
#include "front/parser.h"
#include "front/settings.h"

namespace zep {

void run_program(std::istream& in) {
  session z(in);
  set_defaults(z);
  hello();
  show_settings();
  parser(z);
  z.var.del_all(true);
  std::cout << Line << "thanks for using ZEP\n" << Line;
}

}  // namespace zep
