// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/terminal/terminal.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace zep::tests {
namespace {

INSTANTIATE_TEST_SUITE_P(Every, Terminal, testing::Values(ZEP_PROGRAM, ZEP_PLAIN_PROGRAM),
                         [](const auto& program) {
                           return program.index == 0 ? "LineEditing" : "Plain";
                         });

TEST_P(Terminal, ShowsPromptsAndResults) {
  await_prompt();
  type_line("get A 1");
  type_line("1 2 3 4");
  expect("1. point entered : <1:2:3:4>");
  await_prompt();
  type_line("alpha A");
  expect("alpha = 1");
  await_prompt();
  type_line("quit");
  expect("thanks for using ZEP");
  EXPECT_EQ(zep_.exit_status(), 0);
}

TEST_P(Terminal, LeavesAtTheEndOfTheInput) {
  await_prompt();
  zep_.type(ctrl_d);
  expect("thanks for using ZEP");
  EXPECT_EQ(zep_.exit_status(), 0);
}

// As they can't be seen, they do not count.
TEST_P(Terminal, DropsBlanksAtTheEndOfALine) {
  await_prompt();
  type_line("gbasis  ");
  expect("command needs indentifier");
  await_prompt();
  type_line("random A 5 ");
  await_prompt();
  type_line("alpha A ");
  expect("alpha = 2");
}

TEST_P(Terminal, LeavesWhenTheInputEndsInsideACommand) {
  await_prompt();
  type_line("get A");
  await_question("enter number of points : ");
  zep_.type(ctrl_d);
  expect("unexpected end of input");
  expect("thanks for using ZEP");
  EXPECT_EQ(zep_.exit_status(), 0);
}

TEST_P(Terminal, ErasesWhatIsCorrected) {
  await_prompt();
  type_line("lisx" + backspace + "t");
  await_prompt();
  type_line("nothing");
  expect("command or indentifier unknown");
  EXPECT_EQ(zep_.shown().find("command or indentifier unknown"), zep_.shown().rfind("command or"));
}

TEST_P(Terminal, ClearsTheLineAtAnInterrupt) {
  await_prompt();
  zep_.type("nonsense");
  expect("nonsense");
  zep_.type(ctrl_c);
  await_prompt();
  type_line("ring");
  expect("F101[XYZT]");
  await_prompt();
  EXPECT_EQ(zep_.shown().find("unknown"), std::string::npos);
  EXPECT_EQ(zep_.shown().find("interrupted"), std::string::npos);
}

TEST_P(Terminal, GivesUpWhatIsBeingTypedForACommandAtAnInterrupt) {
  await_prompt();
  type_line("get A");
  await_question("enter number of points : ");
  zep_.type(ctrl_c);
  expect("interrupted");
  await_prompt();
  type_line("get A 2");
  type_line("1 2 3 4");
  expect("1. point entered");
  zep_.type("1 0" + ctrl_c);
  expect("interrupted");
  await_prompt();
  type_line("A");
  expect("command or indentifier unknown");
}

TEST_P(Terminal, GivesThePromptBackInTheMiddleOfAComputation) {
  await_prompt();
  type_line("random A " + std::to_string(many_points));
  await_prompt();
  type_line("bumo A");
  expect("[" + std::to_string(many_points - 1) + "]");
  const auto pressed = std::chrono::steady_clock::now();
  zep_.type(ctrl_c);
  expect("interrupted");
  await_prompt();
  RecordProperty("milliseconds",
                 static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                      std::chrono::steady_clock::now() - pressed)
                                      .count()));
  type_line("write A");
  await_question("enter filename : ");
  type_line("/dev/null");
  await_prompt();
  type_line("quiet");
  await_prompt();
  type_line("alpha A");
  expect("alpha = " + std::to_string(alpha_of_many));
  await_prompt();
  type_line("quit");
  EXPECT_EQ(zep_.exit_status(), 0);
}

TEST_P(Terminal, TakesTheLinesThatAreTypedAhead) {
  await_prompt();
  zep_.type("random A 5\nalpha A\nsigma A\nquit\n");
  expect("alpha = 2");
  expect("sigma = ");
  EXPECT_EQ(zep_.exit_status(), 0);
}

// The log has what the terminal echoes; the screen has it once.
TEST_P(Terminal, IsLoggedWithWhatIsTyped) {
  const std::string log = own_path("log-of-a-terminal");
  std::filesystem::remove(log);
  {
    pseudo_terminal logged({GetParam(), "-q", "--echo", "--log", log});
    logged.type("ring\nquit\n");
    ASSERT_TRUE(logged.shows("F101[XYZT]")) << logged.shown();
    EXPECT_EQ(logged.exit_status(), 0);
  }
  std::ostringstream text;
  text << std::ifstream(log).rdbuf();
  EXPECT_TRUE(text.str().starts_with("ring\ndimension         : 3\n")) << text.str();
  EXPECT_TRUE(text.str().ends_with("quit\n")) << text.str();
  std::filesystem::remove(log);
}

}  // namespace
}  // namespace zep::tests
