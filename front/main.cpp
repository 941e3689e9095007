// SPDX-License-Identifier: GPL-3.0-or-later

#include <iostream>
#include <new>
#include <stdexcept>

#include "front/options.h"
#include "front/process/memory.h"
#include "front/process/process.h"
#include "front/program.h"

int main(int argc, char** argv) {
  zep::front::prepare_process();
  zep::front::install_mem_warn();
  std::ios::sync_with_stdio(false);
  int status = 0;
  try {
    const zep::front::command_line line = zep::front::read_command_line(argc, argv);
    status = line.status ? *line.status : zep::front::run_program(line.chosen);
  } catch (const std::bad_alloc&) {
    // A size that no allocator is even asked for.
    zep::front::mem_warn();
  } catch (const std::length_error&) {
    zep::front::mem_warn();
  }
  const int output_status = zep::front::finish_output();
  return output_status != 0 ? output_status : status;
}
