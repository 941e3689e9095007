#include "front/prompt.h"

#include <gtest/gtest.h>

#include <iostream>

#include "tests/captured.h"

namespace zep {
namespace {

TEST(Prompt, IsShownAndRememberedUntilItIsTaken) {
  const captured out(std::cout);
  EXPECT_TRUE(prompt("how many : "));
  EXPECT_EQ(out.text(), "how many : ");
  EXPECT_EQ(take_prompt(), "how many : ");
  EXPECT_EQ(take_prompt(), "");
}

TEST(Prompt, IsNotShownWhilePromptsAreOff) {
  const captured out(std::cout);
  show_prompts(false);
  EXPECT_TRUE(prompt(command_prompt));
  show_prompts(true);
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(take_prompt(), command_prompt);
}

TEST(Prompt, TellsWhenNobodyCanSeeIt) {
  const captured out(std::cout);
  std::cout.setstate(std::ios::badbit);
  EXPECT_FALSE(prompt(command_prompt));
  std::cout.clear();
  static_cast<void>(take_prompt());
}

}  // namespace
}  // namespace zep
