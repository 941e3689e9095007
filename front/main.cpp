#include <iostream>
#include <new>
#include <stdexcept>

#include "front/memory.h"
#include "front/process.h"
#include "front/program.h"
#include "front/standard_input.h"

int main() {
  zep::prepare_process();
  std::ios::sync_with_stdio(false);
  zep::install_mem_warn();
  try {
    zep::standard_input keyboard;
    std::istream in(&keyboard);
    zep::run_program(in);
  } catch (const std::bad_alloc&) {
    // A size that no allocator is even asked for.
    zep::mem_warn();
  } catch (const std::length_error&) {
    zep::mem_warn();
  }
  return zep::finish_output();
}
