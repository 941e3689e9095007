// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of whole sessions in a process of their own.
#pragma once

#include <filesystem>
#include <stdexcept>

#include "base/floors.h"

namespace zep::tests {

struct measurement {
  // From before the process exists until it has ended.
  double milliseconds = 0;
  // Most memory it had at any time, in units of 2^20 bytes.
  double megabytes = 0;
};

// What went wrong with a run.
class failed_run : public std::runtime_error {
  using runtime_error::runtime_error;
};

// The user wants no more.
class interruption : public std::runtime_error {
 public:
  interruption() : runtime_error("interrupted") {}
};

// From now on, an interrupt ends the run that is going on with an `interruption`, so that what this
// process holds is given back.
void end_runs_at_interrupt();

// Runs the program, an absolute path, in the folder: `session_file` on its standard input, its
// output to a file there. Throws failed_run unless it ends with status 0 and its farewell, and
// reports nothing wrong with what was typed.
measurement measured_run(const std::filesystem::path& program, const std::filesystem::path& folder);

}  // namespace zep::tests
