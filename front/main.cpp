#include <iostream>
#include <new>
#include <stdexcept>

#include "arith/output.h"
#include "front/memory.h"
#include "front/parser.h"
#include "front/process.h"
#include "front/settings.h"
#include "front/standard_input.h"

namespace {

void run() {
  zep::standard_input keyboard;
  std::istream in(&keyboard);
  zep::session z(in);
  zep::set_defaults(z);
  zep::hello();
  zep::show_settings();
  zep::parser(z);
  z.var.del_all(true);
  std::cout << zep::Line << "thanks for using ZEP\n" << zep::Line;
}

}  // namespace

int main() {
  zep::prepare_process();
  std::ios::sync_with_stdio(false);
  zep::install_mem_warn();
  try {
    run();
  } catch (const std::bad_alloc&) {
    // A size that no allocator is even asked for.
    zep::mem_warn();
  } catch (const std::length_error&) {
    zep::mem_warn();
  }
  return 0;
}
