// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/parser.h"

#include <gtest/gtest.h>

#include <ios>
#include <sstream>
#include <string>

#include "base/interrupt.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

const std::string settings =
    "dimension         : 3\nring              : F101[XYZT]\nmonomial ordering : deg-rev-lex\n" +
    line;
const std::string shown_A = "scheme A:\nscheme consists of 1 points:\n<1:32:36:18>\n" + line;

TEST(Parser, EmptyLinesGetNoPromptOfTheirOwn) {
  EXPECT_EQ(type_in("\n \n\t\n\n").out, "% ");
  EXPECT_EQ(type_in("\n\nlist\n\n").out, "% % ");
}

TEST(Parser, AnUnknownWordIsReported) {
  EXPECT_EQ(type_in("nonsense\n").out, "% command or indentifier unknown\n% ");
}

TEST(Parser, TheRestOfALongWordIsReportedAsUnexpected) {
  EXPECT_EQ(type_in("abcdefghijklmno\n").out,
            "% command or indentifier unknown\nunexpected 'mno'\n% ");
}

TEST(Parser, AWordThatGoesOnBehindACommandsNameIsNoCommand) {
  EXPECT_EQ(type_in("alphabet\n").out, "% command or indentifier unknown\n% ");
  EXPECT_EQ(type_in("putlinomsyzX A\n").out,
            "% command or indentifier unknown\nunexpected 'A'\n% ");
}

TEST(Parser, CommandsAreCaseSensitive) {
  EXPECT_EQ(type_in("List\n").out, "% command or indentifier unknown\n% ");
}

TEST(Parser, AnIdentifierTypedAloneIsDisplayed) {
  EXPECT_EQ(type_in("random A 1\nA\n").out, "% " + line + "% " + shown_A + "% ");
  EXPECT_EQ(type_in("random A 1\nA x\n").out, "% " + line + "% " + shown_A + "unexpected 'x'\n% ");
}

TEST(Parser, AnIdentifierOfTwelveCharactersIsFoundInALongerWord) {
  EXPECT_EQ(type_in("random abcdefghijkl 1\nalpha abcdefghijklm\n").out,
            "% " + line + "% " + line + "alpha = 1\n" + line + "unexpected 'm'\n% ");
}

TEST(Parser, ACommandsNameMayNameAnIdentifierButRunsTheCommand) {
  EXPECT_EQ(type_in("random list 1\nlist\n").out, "% " + line + "% scheme list\n% ");
}

TEST(Parser, ACommandThatNeedsAnIdentifierSaysSo) {
  EXPECT_EQ(type_in("display\n").out, "% command needs indentifier\n% ");
  EXPECT_EQ(type_in("alpha\n").out, "% command needs indentifier\n% ");
  EXPECT_EQ(type_in("alpha B\n").out, "% indentifier unknown\n% ");
  EXPECT_EQ(type_in("del B\n").out, "% indentifier unknown\n% ");
}

TEST(Parser, WhiteSpaceBehindTheCommandMakesTheNextLineGiveTheIdentifier) {
  EXPECT_EQ(type_in("random A 1\ndel \nA\n").out, "% " + line + "% A deleted\n% ");
  EXPECT_EQ(type_in("random A 1\ndel\nA\n").out,
            "% " + line + "% command needs indentifier\n% " + shown_A + "% ");
}

TEST(Parser, CarriageReturnsAreWhiteSpace) {
  EXPECT_EQ(type_in("list\r\nring\r\n").out, "% % " + settings + "% ");
  EXPECT_EQ(type_in("random A 1\r\ndel A\r\n").out, "% " + line + "% A deleted\n% ");
  // The carriage return is not the line end, so the next word is taken for the identifier.
  EXPECT_EQ(type_in("del\r\nring\r\n").out, "% indentifier unknown\n% ");
}

TEST(Parser, WhatIsLeftOfALineIsReportedFromItsFirstCharacterOn) {
  EXPECT_EQ(type_in("list \t x  y \n").out, "% unexpected 'x  y '\n% ");
  EXPECT_EQ(type_in("list \v\f\t\n").out, "% % ");
  EXPECT_EQ(type_in("list '\n").out, "% unexpected '''\n% ");
}

TEST(Parser, WhatIsLeftOfALineIsReportedBehindAnErrorToo) {
  EXPECT_EQ(type_in("alpha B and C\n").out, "% indentifier unknown\nunexpected 'and C'\n% ");
  EXPECT_EQ(type_in("random A 1\nA\v\nnonsense \t!\n").out,
            "% " + line + "% " + shown_A + "% command or indentifier unknown\nunexpected '!'\n% ");
}

TEST(Parser, BytesOfEveryKindAreReportedAsTheyAre) {
  const std::string bytes("\x01\xff\0z", 4);
  EXPECT_EQ(type_in("list " + bytes + "\n").out, "% unexpected '" + bytes + "'\n% ");
  EXPECT_EQ(type_in(bytes + "\n").out, "% command or indentifier unknown\n% ");
}

TEST(Parser, QuitAndExitEndTheLoopAfterTheRestOfTheirLine) {
  EXPECT_EQ(type_in("quit\nlist\n").out, "% ");
  EXPECT_EQ(type_in("exit\nlist\n").out, "% ");
  EXPECT_EQ(type_in("quit now\nlist\n").out, "% unexpected 'now'\n");
}

TEST(Parser, TheEndOfTheInputEndsTheLoop) {
  EXPECT_EQ(type_in("").out, "% ");
  EXPECT_EQ(type_in("  ").out, "% ");
}

TEST(Parser, ALastLineWithoutLineEndIsCarriedOut) {
  EXPECT_EQ(type_in("ring").out, "% " + settings + "% ");
  EXPECT_EQ(type_in("ring x").out, "% " + settings + "unexpected 'x'\n% ");
  EXPECT_EQ(type_in("random A 1\nA").out, "% " + line + "% " + shown_A + "% ");
  EXPECT_EQ(type_in("random A 1\ndel A").out, "% " + line + "% A deleted\n% ");
  EXPECT_EQ(type_in("quit").out, "% ");
}

TEST(Parser, ACommandThatTheEndOfTheInputCutsOffIsDropped) {
  EXPECT_EQ(type_in("del").out, "% ");
  EXPECT_EQ(type_in("del ").out, "% ");
  EXPECT_EQ(type_in("random A 1\nalpha \n\n").out, "% " + line + "% ");
}

TEST(Parser, EveryBeginningOfASessionEndsInOrder) {
  const std::string session =
      "get A 2\n1 0 0 0\n2 1 1/2 -3\nalpha A\nsep A x\nrandom B 3\nB\nrange 7\nidentifiers\n"
      "abcd\nscheme C nowhere\nis_cb\ndel \nA\ndim 2\nchar 7\ndeglex\nrandom2 D 4\n"
      "gbasis D\nlingenpos D\nhelp\nnonsense\nlist\nquit\n";
  for (std::size_t length = 0; length <= session.size(); ++length) {
    std::istringstream keyboard(session.substr(0, length));
    workspace shared;
    zep::tests::session z(shared, keyboard);
    const captured out(std::cout);
    const captured err(std::cerr);
    parser(z);
    EXPECT_TRUE(z.quit) << length;
  }
}

TEST(Parser, GoesOnBehindAnErrorUnlessItIsToStop) {
  const std::string typed = "list\nnonsense\nlist\n";
  workspace goes_on;
  EXPECT_EQ(type_in(goes_on, typed).out, "% % command or indentifier unknown\n% % ");
  EXPECT_FALSE(has_to_stop(goes_on));
  workspace stops;
  stops.stop_on_error = true;
  EXPECT_FALSE(has_to_stop(stops));
  EXPECT_EQ(type_in(stops, typed).out, "% % command or indentifier unknown\n");
  EXPECT_TRUE(has_to_stop(stops));
}

TEST(Parser, CountsWhatIsLeftOfALineAsAnError) {
  workspace shared;
  type_in(shared, "list x\n");
  EXPECT_EQ(shared.wrong.number(), 1);
  type_in(shared, "nonsense x\n");
  EXPECT_EQ(shared.wrong.number(), 3);
  type_in(shared, "list\n\nring\n");
  EXPECT_EQ(shared.wrong.number(), 3);
}

TEST(Parser, EndsWithoutACommandWhenNobodySeesThePrompt) {
  std::istringstream keyboard("quiet\n");
  workspace shared;
  session z(shared, keyboard);
  const captured out(std::cout);
  std::cout.setstate(std::ios::badbit);
  parser(z);
  std::cout.clear();
  EXPECT_TRUE(shared.report.is_verbose());
  EXPECT_FALSE(z.quit);
}

TEST(Parser, SaysThatACommandWasInterruptedAndGoesOn) {
  workspace shared;
  type_in(shared, "random A 3\n");
  request_interrupt();
  const transcript t = type_in(shared, "alpha A\nlist\n");
  // What was typed already is dropped.
  EXPECT_EQ(t.out, "% % ");
  EXPECT_EQ(t.err.substr(t.err.size() - 12), "interrupted\n");
  EXPECT_EQ(shared.wrong.number(), 0);
  EXPECT_EQ(type_in(shared, "list\n").out, "% scheme A\n% ");
}

TEST(Parser, AVeryLongLineIsReportedWhole) {
  const std::string rest(1 << 20, 'x');
  EXPECT_EQ(type_in("list " + rest + "\n").out, "% unexpected '" + rest + "'\n% ");
}

}  // namespace
}  // namespace zep::tests
