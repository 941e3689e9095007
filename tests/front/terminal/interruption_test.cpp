// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/interruption.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "base/interrupt.h"

namespace zep::tests {
namespace {

// What the signal did before is in force again in the end.
class Interruption : public testing::Test {
 protected:
  void SetUp() override {
    ::sigaction(SIGINT, nullptr, &before_);
    catch_interrupts();
  }
  void TearDown() override {
    static_cast<void>(take_interrupt());
    ::sigaction(SIGINT, &before_, nullptr);
  }

 private:
  struct sigaction before_ {};
};

// Standard input on which no key is pressed, while it lives.
class silent_keyboard {
 public:
  silent_keyboard() : before_(::dup(STDIN_FILENO)) {
    EXPECT_EQ(::pipe(ends_.data()), 0);
    ::dup2(ends_[0], STDIN_FILENO);
  }
  ~silent_keyboard() {
    ::dup2(before_, STDIN_FILENO);
    for (const int descriptor : {before_, ends_[0], ends_[1]}) ::close(descriptor);
  }
  silent_keyboard(const silent_keyboard&) = delete;
  silent_keyboard& operator=(const silent_keyboard&) = delete;

 private:
  int before_;
  std::array<int, 2> ends_{};
};

TEST_F(Interruption, EndsTheComputationAtItsNextCheck) {
  heed_interrupt();
  std::raise(SIGINT);
  EXPECT_THROW(heed_interrupt(), interrupted);
  heed_interrupt();
}

TEST_F(Interruption, IsTakenOnce) {
  EXPECT_FALSE(take_interrupt());
  std::raise(SIGINT);
  EXPECT_TRUE(take_interrupt());
  EXPECT_FALSE(take_interrupt());
}

TEST_F(Interruption, NoLongerEndsAComputationWhenItIsTaken) {
  std::raise(SIGINT);
  EXPECT_TRUE(take_interrupt());
  heed_interrupt();
}

TEST_F(Interruption, EndsTheProcessWhenAnEarlierOneIsNotTakenYet) {
  EXPECT_EXIT(
      {
        std::raise(SIGINT);
        std::raise(SIGINT);
      },
      testing::ExitedWithCode(130), "");
  EXPECT_EXIT(
      {
        std::raise(SIGINT);
        try {
          heed_interrupt();
        } catch (const interrupted&) {
          std::raise(SIGINT);
        }
      },
      testing::ExitedWithCode(130), "");
}

TEST_F(Interruption, IsHeldBackUntilAKeyIsAwaited) {
  const silent_keyboard keyboard;
  const held_interrupts held;
  std::raise(SIGINT);
  EXPECT_FALSE(take_interrupt());
  char key = 0;
  EXPECT_EQ(held.await_key(key), key_event::signal);
  EXPECT_TRUE(take_interrupt());
}

TEST_F(Interruption, ThatCameBeforeIsNotWaitedForAgain) {
  const silent_keyboard keyboard;
  std::raise(SIGINT);
  const held_interrupts held;
  char key = 0;
  EXPECT_EQ(held.await_key(key), key_event::signal);
  EXPECT_TRUE(take_interrupt());
}

}  // namespace
}  // namespace zep::tests
