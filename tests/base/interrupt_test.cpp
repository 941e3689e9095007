// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/interrupt.h"

#include <gtest/gtest.h>

#include <csignal>
#include <exception>
#include <type_traits>

namespace zep::tests {
namespace {

TEST(Interrupt, IsNotThereUnlessRequested) { EXPECT_NO_THROW(heed_interrupt()); }

TEST(Interrupt, EndsAComputationOnce) {
  request_interrupt();
  request_interrupt();
  EXPECT_THROW(heed_interrupt(), interrupted);
  EXPECT_NO_THROW(heed_interrupt());
}

TEST(Interrupt, IsForgottenWhenItComesTooLate) {
  request_interrupt();
  forget_interrupt();
  EXPECT_NO_THROW(heed_interrupt());
}

TEST(Interrupt, MayBeRequestedInASignalHandler) {
  const auto before = std::signal(SIGUSR1, [](int) { request_interrupt(); });
  static_cast<void>(std::raise(SIGUSR1));
  static_cast<void>(std::signal(SIGUSR1, before));
  EXPECT_THROW(heed_interrupt(), interrupted);
}

TEST(Interrupt, IsNoError) { EXPECT_FALSE((std::is_base_of_v<std::exception, interrupted>)); }

TEST(Interrupt, ComesAtAGivenCheckOfTheParanoidBuild) {
  const interrupt_at_check third(3);
  heed_interrupt();
  heed_interrupt();
  if constexpr (paranoid) {
    EXPECT_THROW(heed_interrupt(), interrupted);
  }
  for (int check = 0; check < 10; ++check) EXPECT_NO_THROW(heed_interrupt());
}

TEST(Interrupt, ComesAtNoCheckWhenTheGuardIsGone) {
  {
    const interrupt_at_check second(2);
    heed_interrupt();
  }
  EXPECT_NO_THROW(heed_interrupt());
}

TEST(Interrupt, ComesAtNoCheckWhenNoneIsNamed) {
  const interrupt_at_check none(0);
  for (int check = 0; check < 10; ++check) EXPECT_NO_THROW(heed_interrupt());
}

}  // namespace
}  // namespace zep::tests
