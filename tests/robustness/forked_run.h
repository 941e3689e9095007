// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of the program in a process of their own.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/floors.h"

namespace zep::tests {

struct outcome {
  // As waitpid tells it.
  int status = 0;
  std::string out;
  std::string err;
};

// Does the work in a child process whose current folder is scratch/work, filled anew, and ends that
// as a program ends that returns 0. A child that takes too long is killed by the alarm's signal.
outcome run_forked(const std::filesystem::path& scratch, const std::function<void()>& work);

// Carries the session out as the program does.
outcome run_session(const std::filesystem::path& scratch, const std::string& session);

// What is wrong with the end of a session; empty if nothing is. The program ends with status 0 and
// its farewell, or with status 1 and word of a division by zero
// that was typed.
std::string fault_of(const outcome& run);

// True if the text ends with the farewell.
bool ends_with_farewell(const std::string& out);

}  // namespace zep::tests
