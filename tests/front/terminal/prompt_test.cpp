#include "front/terminal/prompt.h"

#include <gtest/gtest.h>

#include <iostream>

#include "tests/captured.h"
#include "tests/flushes.h"

namespace zep::tests {
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

// Whatever follows may take long, or be the end.
TEST(Prompt, BringsOutWhatStandsBeforeIt) {
  noted_flushes seen;
  std::streambuf* const before = std::cout.rdbuf(&seen);
  std::cout << "an answer\n";
  prompt(command_prompt);
  EXPECT_EQ(seen.flushed(), "an answer\n% ");
  show_prompts(false);
  std::cout << "another\n";
  prompt(command_prompt);
  EXPECT_EQ(seen.flushed(), "an answer\n% another\n");
  show_prompts(true);
  std::cout.rdbuf(before);
  static_cast<void>(take_prompt());
}

TEST(Prompt, TellsWhenNobodyCanSeeIt) {
  const captured out(std::cout);
  std::cout.setstate(std::ios::badbit);
  EXPECT_FALSE(prompt(command_prompt));
  std::cout.clear();
  static_cast<void>(take_prompt());
}

}  // namespace
}  // namespace zep::tests
