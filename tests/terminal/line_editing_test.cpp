// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/terminal/terminal.h"

namespace zep::tests {
namespace {

// What only line editing does.
class LineEditing : public Terminal {};

INSTANTIATE_TEST_SUITE_P(With, LineEditing, testing::Values(ZEP_PROGRAM));

TEST_P(LineEditing, MovesInTheLine) {
  await_prompt();
  type_line("ing" + start_of_line + "r");
  expect("F101[XYZT]");
}

TEST_P(LineEditing, OffersEarlierLinesAgain) {
  await_prompt();
  type_line("random A 5");
  await_prompt();
  type_line("alpha A");
  expect("alpha = 2");
  await_prompt();
  type_line(up);
  expect("alpha = 2");
  await_prompt();
  type_line(up + up + up);
  expect("indentifier already exists");
}

TEST_P(LineEditing, CompletesCommands) {
  await_prompt();
  type_line("hilb\tA");
  expect("indentifier unknown");
  await_prompt();
  zep_.type("putlin\t\t");
  expect("putlinomsyz");
}

TEST_P(LineEditing, CompletesIdentifiersBehindCommandsThatTakeOne) {
  await_prompt();
  type_line("random quadric 5");
  await_prompt();
  type_line("alpha qu\t");
  expect("alpha = ");
  await_prompt();
  type_line("quadr\t");
  expect("scheme quadric:");
}

TEST_P(LineEditing, PutsABlankBehindAWordThatIsComplete) {
  await_prompt();
  type_line("random quadric 5");
  await_prompt();
  type_line("sigm\tqu\t");
  expect("sigma = ");
  await_prompt();
  type_line("gb\t");
  expect("command needs indentifier");
}

// Terminals send a carriage return for a line end. What stands behind the last one is edited.
TEST_P(LineEditing, TakesPastedLinesOneByOne) {
  await_prompt();
  zep_.type(pasted("random A 5\ralpha A\r\nring\nsig"));
  expect("random A 5\r\n");
  expect("% alpha A\r\n");
  expect("alpha = 2");
  expect("% ring\r\n");
  expect("F101[XYZT]");
  await_prompt();
  expect("sig");
  type_line("ma A");
  expect("sigma = ");
  await_prompt();
  type_line(up + up + up);
  expect("alpha = 2");
}

TEST_P(LineEditing, TakesTabsOfWhatIsPastedForBlanks) {
  await_prompt();
  zep_.type(pasted("get A\r2\r1\t2\t3\t4\r1\t3\t5\t7\r"));
  expect("1. point entered : <1:2:3:4>");
  expect("2. point entered : <1:3:5:7>");
  await_prompt();
  type_line("A");
  expect("<1:2:3:4><1:3:5:7>");
}

TEST_P(LineEditing, PutsWhatIsPastedWhereTheCursorIs) {
  await_prompt();
  zep_.type("ri" + start_of_line + pasted("x") + "\x05" + pasted("ng"));
  type_line(start_of_line + "\x1b[3~");
  expect("F101[XYZT]");
}

TEST_P(LineEditing, DropsTheRestOfWhatIsPastedAtAnInterrupt) {
  await_prompt();
  zep_.type(pasted("random A " + std::to_string(many_points) + "\rbumo A\rnonsense\rnonsense\r"));
  expect("[" + std::to_string(many_points - 1) + "]");
  zep_.type(ctrl_c);
  expect("interrupted");
  await_prompt();
  type_line("ring");
  expect("F101[XYZT]");
  await_prompt();
  EXPECT_EQ(zep_.shown().find("nonsense"), std::string::npos) << zep_.shown();
}

TEST_P(LineEditing, EndsTheLineOfThePromptAtTheEndOfTheInput) {
  for (const char* const configuration : {"/dev/null", ZEP_TEST_INPUTRC}) {
    pseudo_terminal screen({GetParam()}, 80, configuration);
    // Only line editing goes back over the letter, so it awaits keys then.
    screen.type("x" + start_of_line);
    ASSERT_TRUE(screen.shows("x\b")) << screen.shown();
    screen.type(delete_to_the_end + ctrl_d);
    ASSERT_TRUE(screen.shows("thanks for using ZEP")) << screen.shown();
    EXPECT_EQ(screen.exit_status(), 0);
    const std::string end = screen.shown().substr(screen.shown().rfind("x\b"));
    EXPECT_NE(end.find("\r\n-----"), std::string::npos) << screen.shown();
    EXPECT_EQ(end.find("\n\r\n"), std::string::npos) << screen.shown();
  }
}

TEST_P(LineEditing, GivesUpASearchAtAnInterrupt) {
  await_prompt();
  type_line("random A 5");
  await_prompt();
  for (const std::string& dialogue : {search_backwards, search_backwards + "rand"}) {
    zep_.type(dialogue);
    zep_.type(ctrl_c);
    expect("^C");
    await_prompt();
    type_line("ring");
    expect("F101[XYZT]");
    await_prompt();
  }
  type_line("get B");
  await_question("enter number of points : ");
  zep_.type(search_backwards + "ra" + ctrl_c);
  expect("interrupted");
  await_prompt();
}

TEST_P(LineEditing, ShowsTheLineAgainWhenTheProgramGoesOn) {
  await_prompt();
  zep_.type("abc def");
  expect("abc def");
  zep_.send(SIGSTOP);
  zep_.send(SIGCONT);
  expect("% abc def");
}

TEST_P(LineEditing, LeavesNoRoomForAPromptThatIsNotShown) {
  pseudo_terminal bare({GetParam(), "-q"});
  ASSERT_TRUE(bare.shows(awaits_keys)) << bare.shown();
  bare.type("get A\n");
  ASSERT_TRUE(bare.shows(awaits_keys)) << bare.shown();
  bare.type("x" + start_of_line + "1 \n");
  ASSERT_TRUE(bare.shows("malformed number") || bare.shows("unexpected")) << bare.shown();
  EXPECT_EQ(bare.shown().find("number of"), std::string::npos) << bare.shown();
}

// The question stays on the line, with its answer typed ahead and no line end behind it.
TEST_P(LineEditing, KnowsWhatStandsBeforeThePrompt) {
  await_prompt();
  type_line("quiet");
  await_prompt();
  type_line("random A 5");
  await_prompt();
  type_line("writelinid A /dev/null");
  await_question("enter filename : % ");
  zep_.type(up);
  expect("writelinid A /dev/null");
  // To show another line the cursor goes back behind what was there.
  zep_.type(up);
  expect(to_column(19));
}

TEST_P(LineEditing, KnowsThatProgressHasEndedALine) {
  await_prompt();
  type_line("random A 5");
  await_prompt();
  type_line("putlinid A /dev/null");
  await_question("\r\n% ");
  zep_.type(up);
  expect("putlinid A /dev/null");
  zep_.type(up);
  expect(to_column(2));
}

TEST_P(LineEditing, KnowsWhatAnEarlierSessionHasLeftOnTheLine) {
  pseudo_terminal screen({GetParam(), "-e", "quiet", "-"});
  ASSERT_TRUE(screen.shows("% % ")) << screen.shown();
  ASSERT_TRUE(screen.shows(awaits_keys)) << screen.shown();
  screen.type(std::string(30, 'x') + start_of_line);
  ASSERT_TRUE(screen.shows("x" + to_column(4))) << screen.shown();
}

TEST_P(LineEditing, CompletesFileNames) {
  const std::filesystem::path folder = own_path("completes-file-names");
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "one-point-of-the-plane") << "4 1 1 5 6 7\n";
  // Names with blanks can't be typed, so they are not in the way.
  std::ofstream(folder / "one-p with a blank") << "0\n";
  await_prompt();
  type_line("scheme A");
  await_question("enter filename : ");
  type_line((folder / "one-p").string() + "\t");
  await_prompt();
  type_line("A");
  expect("<1:5:6:7>");
  std::filesystem::remove_all(folder);
}

TEST_P(LineEditing, CompletesNothingWhereANumberIsAsked) {
  await_prompt();
  type_line("get A");
  await_question("enter number of points : ");
  type_line("\t1");
  type_line("1 2 3 4");
  expect("<1:2:3:4>");
}

// The way back to the start of the line leads over a row where the letters do not fit one.
TEST_P(LineEditing, KnowsTheWidthOfTheTerminal) {
  const std::string row_up = "\x1b[A";
  for (const int columns : {80, 200}) {
    pseudo_terminal screen({GetParam()}, static_cast<unsigned short>(columns));
    ASSERT_TRUE(screen.shows(awaits_keys)) << screen.shown();
    screen.type(std::string(120, 'x') + start_of_line + "\n");
    ASSERT_TRUE(screen.shows("unknown")) << screen.shown();
    EXPECT_EQ(screen.shown().find(row_up) != std::string::npos, columns == 80) << screen.shown();
  }
}

}  // namespace
}  // namespace zep::tests
