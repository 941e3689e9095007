// Expecting the end of the process at a division by zero.
#pragma once

#include <gtest/gtest.h>

#include <iostream>

#include "base/floors.h"

namespace zep::tests {

// Death tests see standard error only: makes the two streams change places before `action` runs.
template <class Action>
void with_output_on_standard_error(Action action) {
  std::cerr.rdbuf(std::cout.rdbuf(std::cerr.rdbuf()));
  action();
}

// Expects `action` to report division by zero in `field` on standard output and to end the process
// with status 1.
template <class Action>
void expect_division_fault(const std::string& field, Action action) {
  EXPECT_EXIT(with_output_on_standard_error(action), testing::ExitedWithCode(1),
              testing::Eq("\n" + field + ": division by zero\n"));
}

}  // namespace zep::tests
