// SPDX-License-Identifier: GPL-3.0-or-later
// Tests that are run with every variant of the kernels.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "linalg/kernels/row_kernels.h"

namespace zep::tests {

// A test of it, instantiated with runnable_kernels(), runs with each variant in force.
class variant_in_force : public testing::TestWithParam<const row_kernels*> {
 private:
  const kernels_in_force forced_{*GetParam()};
};

inline std::string name_of_variant(const testing::TestParamInfo<const row_kernels*>& variant) {
  std::string name = variant.param->name;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

}  // namespace zep::tests
