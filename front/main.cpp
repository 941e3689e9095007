#include <iostream>
#include <new>
#include <stdexcept>

#include "front/memory.h"
#include "front/options.h"
#include "front/process.h"
#include "front/program.h"

int main(int argc, char** argv) {
  zep::prepare_process();
  std::ios::sync_with_stdio(false);
  zep::install_mem_warn();
  int status = 0;
  try {
    const zep::command_line line = zep::read_command_line(argc, argv);
    status = line.status ? *line.status : zep::run_program(line.chosen);
  } catch (const std::bad_alloc&) {
    // A size that no allocator is even asked for.
    zep::mem_warn();
  } catch (const std::length_error&) {
    zep::mem_warn();
  }
  const int output_status = zep::finish_output();
  return output_status != 0 ? output_status : status;
}
