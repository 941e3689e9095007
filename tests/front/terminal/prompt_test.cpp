// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/prompt.h"

#include <gtest/gtest.h>

#include <iostream>

#include "tests/captured.h"
#include "tests/flushes.h"

namespace zep::tests {
namespace {

TEST(Prompt, IsShownAndRememberedUntilItIsTaken) {
  prompter prompt;
  const captured out(std::cout);
  EXPECT_TRUE(prompt.ask("how many : "));
  EXPECT_EQ(out.text(), "how many : ");
  EXPECT_EQ(prompt.take(), awaited::answer);
  EXPECT_EQ(prompt.take(), awaited::more);
}

TEST(Prompt, KnowsWhatItAsksFor) {
  prompter prompt;
  const captured out(std::cout);
  EXPECT_EQ(prompt.take(), awaited::more);
  EXPECT_TRUE(prompt.ask_for_command());
  EXPECT_EQ(prompt.take(), awaited::command);
  EXPECT_TRUE(prompt.ask_for_filename());
  EXPECT_EQ(prompt.take(), awaited::file_name);
  EXPECT_EQ(out.text(), "% enter filename : ");
}

TEST(Prompt, ThatCameLastCounts) {
  prompter prompt;
  const captured out(std::cout);
  prompt.ask_for_command();
  prompt.ask_for_filename();
  EXPECT_EQ(prompt.take(), awaited::file_name);
}

TEST(Prompt, IsNotShownWhilePromptsAreOff) {
  prompter prompt;
  const captured out(std::cout);
  prompt.show(false);
  EXPECT_TRUE(prompt.ask_for_command());
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(prompt.take(), awaited::command);
  prompt.show(true);
  EXPECT_TRUE(prompt.ask_for_command());
  EXPECT_EQ(out.text(), "% ");
}

TEST(Prompt, BelongsToItsPrompter) {
  prompter prompt;
  prompter other;
  const captured out(std::cout);
  prompt.show(false);
  other.ask_for_command();
  EXPECT_EQ(out.text(), "% ");
  EXPECT_EQ(prompt.take(), awaited::more);
}

// Whatever follows may take long, or be the end.
TEST(Prompt, BringsOutWhatStandsBeforeIt) {
  prompter prompt;
  noted_flushes seen;
  std::streambuf* const before = std::cout.rdbuf(&seen);
  std::cout << "an answer\n";
  prompt.ask_for_command();
  EXPECT_EQ(seen.flushed(), "an answer\n% ");
  prompt.show(false);
  std::cout << "another\n";
  prompt.ask_for_command();
  EXPECT_EQ(seen.flushed(), "an answer\n% another\n");
  std::cout.rdbuf(before);
}

TEST(Prompt, TellsWhenNobodyCanSeeIt) {
  prompter prompt;
  const captured out(std::cout);
  std::cout.setstate(std::ios::badbit);
  EXPECT_FALSE(prompt.ask_for_command());
  EXPECT_FALSE(prompt.ask_for_filename());
  EXPECT_FALSE(prompt.ask("how many : "));
  std::cout.clear();
}

}  // namespace
}  // namespace zep::tests
