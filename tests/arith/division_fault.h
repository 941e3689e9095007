// SPDX-License-Identifier: GPL-3.0-or-later
// Expecting a division by zero.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "arith/division_by_zero.h"

namespace zep::tests {

// Expects `action` to divide by zero in `field`.
template <class Action>
void expect_division_fault(const std::string& field, Action action) {
  try {
    action();
    ADD_FAILURE() << "no division by zero";
  } catch (const division_by_zero& fault) {
    EXPECT_EQ(fault.field, field);
  }
}

}  // namespace zep::tests
