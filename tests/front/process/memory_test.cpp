// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/process/memory.h"

#include <gtest/gtest.h>

#include <new>

namespace zep::tests {
namespace {

TEST(ExhaustedMemory, EndsTheProcessWithStatusTenAndAMessageOnStandardError) {
  EXPECT_EXIT(mem_warn(), testing::ExitedWithCode(10), "^\nNew: can't allocate enough memory\n$");
}

TEST(ExhaustedMemory, IsAnsweredByTheHandlerOfNewOnceThatIsInstalled) {
  // The process that this is done in ends with the check.
  EXPECT_EXIT(
      {
        install_mem_warn();
        if (std::get_new_handler() == mem_warn) std::get_new_handler()();
      },
      testing::ExitedWithCode(10), "^\nNew: ");
}

}  // namespace
}  // namespace zep::tests
