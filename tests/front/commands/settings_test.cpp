// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/settings.h"

#include <gtest/gtest.h>

#include "arith/Fp8.h"
#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/output.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

std::string settings(int n, const std::string& ring_name,
                     const std::string& ordering = "deg-rev-lex") {
  return "dimension         : " + std::to_string(n) + "\nring              : " + ring_name +
         "\nmonomial ordering : " + ordering + "\n" + line;
}

const std::string refusal = "% characteristic has to be a prime (2 - 251) !\n";
const std::string too_small = "% \ndimension has to be greater than one !!!\n";

TEST(Settings, StartWithThreeSpaceOverF101) {
  type_in("char 7\ndim 5\ndeglex\nquiet\nidentifiers abcdef\nrange 3\n");
  workspace shared;
  EXPECT_EQ(type_in(shared, "ring\n").out, "% " + settings(3, "F101[XYZT]") + "% ");
  EXPECT_TRUE(shared.report.is_verbose());
  EXPECT_EQ(shared.range1, 0);
  EXPECT_EQ(shared.range2, 50);
  EXPECT_EQ(LL, 80);
  EXPECT_EQ(Line, line);
  EXPECT_EQ(current_ring().names, "XYZTabcdefghijklmnopqrstuvw");
}

TEST(Settings, ChangeOneAtATime) {
  const std::string question = "enter 4 identifiers for current ring : ";
  const std::string border = "current range : [0,50]\nenter upper border : current range : [0,9]\n";
  EXPECT_EQ(
      type_in("identifiers abcdef\ndeglex\nrange 9\ndim 4\nchar 31\ndim 5\ndegrevlex\n"
              "deglex\nrange 8\n")
          .out,
      "% " + question + settings(3, "F101[abcd]") + "% " + settings(3, "F101[abcd]", "deg-lex") +
          "% " + border + line + "% " + settings(4, "F101[abcde]", "deg-lex") + "% " + line +
          settings(4, "F31[abcde]", "deg-lex") + "% " + settings(5, "F31[abcdef]", "deg-lex") +
          "% " + settings(5, "F31[abcdef]") + "% " + settings(5, "F31[abcdef]", "deg-lex") +
          "% current range : [0,9]\nenter upper border : current range : [0,8]\n" + line + "% ");
}

TEST(Settings, TheBannerIsTwoLinesOfTextBetweenSeparators) {
  const captured out(std::cout);
  hello();
  std::istringstream banner(out.text());
  std::string text;
  for (int i = 0; i < 5; ++i) {
    ASSERT_TRUE(std::getline(banner, text));
    EXPECT_EQ(text + "\n" == line, i % 2 == 0) << text;
  }
  EXPECT_FALSE(std::getline(banner, text));
}

TEST(Characteristic, IsAcceptedFrom2To251) {
  EXPECT_EQ(type_in("char 2\n").out, "% " + line + settings(3, "F2[XYZT]") + "% ");
  workspace shared;
  EXPECT_EQ(type_in(shared, "char 251\n").out, "% " + line + settings(3, "F251[XYZT]") + "% ");
  EXPECT_EQ(Fp8(250) + Fp8(1), Fp8(0));
}

TEST(Characteristic, IsRefusedOutsideAndWhenItIsNoNumber) {
  workspace shared;
  EXPECT_EQ(type_in(shared, "char 1\nchar 252\nchar -7\n").out, refusal + refusal + refusal + "% ");
  EXPECT_EQ(type_in(shared, "char x\n").out, refusal + "unexpected 'x'\n% ");
  EXPECT_EQ(type_in(shared, "char 99999999999\n").out, refusal + "% ");
  EXPECT_EQ(Fp8::prime, 101);
  EXPECT_EQ(shared.wrong.number(), 6);
}

TEST(Characteristic, MayStandOnTheNextLine) {
  EXPECT_EQ(type_in("char\n\n 5\n").out, "% " + line + settings(3, "F5[XYZT]") + "% ");
}

TEST(Characteristic, ThatIsCompositeIsAcceptedWithAWarning) {
  const transcript t = type_in("char 4\n");
  EXPECT_EQ(t.out, "% " + line + settings(3, "F4[XYZT]") + "% ");
  EXPECT_EQ(t.err, "warning: 4 is not a prime\n");
  EXPECT_EQ(type_in("char 249\n").err, "warning: 249 is not a prime\n");
  EXPECT_EQ(type_in("char 7\n").err, "");
}

TEST(Characteristic, DeletesEveryIdentifierBehindTheSettings) {
  EXPECT_EQ(type_in("random A 1\nrandom B 1\nchar 7\n").out,
            "% " + line + "% " + line + "% " + line + settings(3, "F7[XYZT]") +
                "A deleted\nB deleted\n" + line + "% ");
  EXPECT_EQ(type_in("random A 1\nchar 1\nlist\n").out, "% " + line + refusal + "% scheme A\n% ");
}

TEST(Characteristic, DeletesEveryIdentifierEvenWithoutAChange) {
  EXPECT_EQ(type_in("random A 1\nchar 101\n").out,
            "% " + line + "% " + line + settings(3, "F101[XYZT]") + "A deleted\n" + line + "% ");
}

TEST(Characteristic, ThatIsRefusedLeavesTheRange) {
  for (const std::string refused : {"1", "-7", "252"}) {
    EXPECT_EQ(type_in("char " + refused + "\nrange 9\n").out,
              refusal + "% current range : [0,50]\nenter upper border : " +
                  "current range : [0,9]\n" + line + "% ");
  }
}

TEST(Characteristic, KeepsTheUpperBorderBelowItForGood) {
  EXPECT_EQ(type_in("char 2\nrange 1\n").out.substr(type_in("char 2\n").out.size()),
            "current range : [0,1]\nenter upper border : current range : [0,1]\n" + line + "% ");
  const std::string there_and_back = "char 31\nchar 101\n";
  EXPECT_EQ(type_in(there_and_back + "range 9\n").out.substr(type_in(there_and_back).out.size()),
            "current range : [0,30]\nenter upper border : current range : [0,9]\n" + line + "% ");
}

TEST(Dimension, IsAcceptedFromTwoOn) {
  workspace shared;
  EXPECT_EQ(type_in(shared, "dim 2\n").out, "% " + settings(2, "F101[XYZ]") + "% ");
  EXPECT_EQ(proj, 3);
  EXPECT_EQ(type_in("dim 26\n").out,
            "% " + settings(26, "F101[XYZTabcdefghijklmnopqrstuvw]") + "% ");
}

TEST(Dimension, IsRefusedBelowTwoAndWhenItIsNoNumber) {
  workspace shared;
  EXPECT_EQ(type_in(shared, "dim 1\ndim 0\ndim -5\n").out,
            too_small + too_small + too_small + "% ");
  EXPECT_EQ(type_in(shared, "dim two\n").out, too_small + "unexpected 'two'\n% ");
  EXPECT_EQ(dim, 3);
  EXPECT_EQ(shared.wrong.number(), 5);
}

TEST(Dimension, DeletesEveryIdentifierBeforeTheSettings) {
  EXPECT_EQ(type_in("random A 1\ndim 3\n").out,
            "% " + line + "% A deleted\n" + line + settings(3, "F101[XYZT]") + "% ");
}

TEST(Dimension, ThatIsRefusedDeletesNothing) {
  EXPECT_EQ(type_in("random A 1\ndim 1\nlist\n").out, "% " + line + too_small + "% scheme A\n% ");
}

TEST(Dimension, DeletesEveryIdentifierBeforeItAsksForNames) {
  EXPECT_EQ(type_in("identifiers abcd\nrandom A 1\ndim 4\nabcde\n").out,
            "% enter 4 identifiers for current ring : " + settings(3, "F101[abcd]") + "% " + line +
                "% A deleted\n" + line +
                "enter 5 identifiers for current ring : " + settings(4, "F101[abcde]") + "% ");
}

TEST(Dimension, KeepsSurplusNamesForLargerOnes) {
  EXPECT_EQ(type_in("identifiers abcd\ndim 4\nuvwxyz\ndim 5\n").out,
            "% enter 4 identifiers for current ring : " + settings(3, "F101[abcd]") +
                "% enter 5 identifiers for current ring : " + settings(4, "F101[uvwxy]") + "% " +
                settings(5, "F101[uvwxyz]") + "% ");
}

TEST(Dimension, AsksForNamesWhenThereAreNotEnough) {
  const transcript t = type_in("identifiers abcd\ndim 5\nabcde\nabcdef\n");
  EXPECT_EQ(t.out, "% enter 4 identifiers for current ring : " + settings(3, "F101[abcd]") +
                       "% enter 6 identifiers for current ring : " +
                       "enter 6 identifiers for current ring : " + settings(5, "F101[abcdef]") +
                       "% ");
  EXPECT_EQ(t.err, "not enough indentifiers\nnot enough indentifiers\n");
}

TEST(Dimension, Above26NeverGetsItsNames) {
  const std::string names = "abcdefghijklmnopqrstuvwxyzABCDEF";
  workspace shared;
  const transcript t = type_in(shared, "dim 27\n" + names + "\nring\n");
  const std::string prompt = "enter 28 identifiers for current ring : ";
  // 26 characters are a word, the remaining six the next one, and so is `ring`.
  EXPECT_EQ(t.out, "% " + prompt + prompt + prompt + prompt);
  EXPECT_EQ(current_ring(), ring());
}

TEST(Dimension, NearTheLargestIntDoesNotOverflow) {
  EXPECT_EQ(type_in("dim 2147483647\n").out, "% enter 2147483648 identifiers for current ring : ");
  EXPECT_EQ(type_in("dim 2147483648\n").out, too_small + "% ");
}

TEST(Names, AreReplacedByAWordThatIsLongEnough) {
  workspace shared;
  const transcript t = type_in(shared, "identifiers\nabc\nuvwxyz\n");
  EXPECT_EQ(t.out, "% enter 4 identifiers for current ring : " +
                       std::string("enter 4 identifiers for current ring : ") +
                       settings(3, "F101[uvwx]") + "% ");
  EXPECT_EQ(t.err, "not enough indentifiers\n");
  EXPECT_EQ(current_ring().names, "uvwxyz");
}

TEST(Names, TakeAtMost26CharactersOfAWord) {
  EXPECT_EQ(type_in("identifiers abcdefghijklmnopqrstuvwxyzAB\n").out,
            "% enter 4 identifiers for current ring : " + settings(3, "F101[abcd]") +
                "unexpected 'AB'\n% ");
}

TEST(Names, DeleteNothing) {
  EXPECT_EQ(type_in("random A 1\nidentifiers abcd\nlist\n").out,
            "% " + line + "% enter 4 identifiers for current ring : " + settings(3, "F101[abcd]") +
                "% scheme A\n% ");
}

TEST(Names, ComeBackWhenTheInputEnds) {
  workspace shared;
  type_in(shared, "identifiers\nabc\n");
  EXPECT_EQ(current_ring(), ring());
}

TEST(Orderings, ShowTheSettingsAndDeleteEveryIdentifierEvenWithoutAChange) {
  workspace shared;
  EXPECT_EQ(type_in(shared, "random A 1\ndegrevlex\n").out,
            "% " + line + "% " + settings(3, "F101[XYZT]") + "A deleted\n" + line + "% ");
  EXPECT_EQ(monom_ordering_lt, degrevlex_lt);
  EXPECT_EQ(type_in("deglex\nrandom A 1\ndeglex\n").out,
            "% " + settings(3, "F101[XYZT]", "deg-lex") + "% " + line + "% " +
                settings(3, "F101[XYZT]", "deg-lex") + "A deleted\n" + line + "% ");
  EXPECT_EQ(type_in(shared, "random A 1\nrandom B 1\ndeglex\n").out,
            "% " + line + "% " + line + "% " + settings(3, "F101[XYZT]", "deg-lex") +
                "A deleted\nB deleted\n" + line + "% ");
  EXPECT_EQ(monom_ordering_lt, deglex_lt);
  EXPECT_EQ(proj_monom_ordering_le, proj_deglex_le);
}

TEST(Range, DeletesNothing) {
  EXPECT_EQ(type_in("random A 1\nrange 9\nlist\n").out,
            "% " + line + "% current range : [0,50]\nenter upper border : " +
                "current range : [0,9]\n" + line + "% scheme A\n% ");
}

TEST(Range, IsCutBelowTheCharacteristic) {
  EXPECT_EQ(
      type_in("range 1000\n").out,
      "% current range : [0,50]\nenter upper border : current range : [0,100]\n" + line + "% ");
}

TEST(Range, AsksAgainUntilTheBorderIsAboveTheLowerOne) {
  const std::string complaint = "upper border must be greater than lower border !!!\n";
  EXPECT_EQ(type_in("range 0 -4 7 x\n").out,
            "% current range : [0,50]\nenter upper border : " + complaint +
                "enter upper border : " + complaint +
                "enter upper border : current range : [0,7]\n" + line + "unexpected 'x'\n% ");
}

TEST(Range, DropsTheLineOfWhatIsNoNumber) {
  const std::string complaint = "upper border must be greater than lower border !!!\n";
  EXPECT_EQ(type_in("range x 9\n 8\n").out,
            "% current range : [0,50]\nenter upper border : " + complaint +
                "enter upper border : current range : [0,8]\n" + line + "% ");
  EXPECT_EQ(type_in("range 99999999999 9\n8\n").out,
            "% current range : [0,50]\nenter upper border : " + complaint +
                "enter upper border : current range : [0,8]\n" + line + "% ");
}

TEST(Range, StaysAsItWasWhenTheInputEnds) {
  std::istringstream keyboard("range\n0\n");
  workspace shared;
  session z(shared, keyboard);
  const captured out(std::cout);
  parser(z);
  EXPECT_EQ(shared.range2, 50);
  EXPECT_TRUE(z.quit);
}

TEST(EndOfInput, DropsSettingsWithoutAWord) {
  EXPECT_EQ(type_in("char").out, "% ");
  EXPECT_EQ(type_in("dim -").out, "% ");
  EXPECT_EQ(type_in("identifiers ").out, "% enter 4 identifiers for current ring : ");
  EXPECT_EQ(type_in("range").out, "% current range : [0,50]\nenter upper border : ");
}

TEST(Verbosity, IsSwitchedWithoutAWord) {
  workspace shared;
  EXPECT_EQ(type_in(shared, "quiet\n").out, "% % ");
  EXPECT_FALSE(shared.report.is_verbose());
  EXPECT_EQ(type_in(shared, "quiet\nverbose\n").out, "% % % ");
  EXPECT_TRUE(shared.report.is_verbose());
}

}  // namespace
}  // namespace zep::tests
