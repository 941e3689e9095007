// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/input.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zep::tests {
namespace {

TEST(Input, WordsAreSeparatedByWhiteSpaceOfEveryKind) {
  std::istringstream typed(" \t\n\v\f\ra b\tc\r\nd");
  input in(typed);
  EXPECT_EQ(in.word(), "a");
  EXPECT_EQ(in.word(), "b");
  EXPECT_EQ(in.word(), "c");
  EXPECT_EQ(in.word(), "d");
  EXPECT_THROW(in.word(), end_of_input);
}

TEST(Input, TheRestOfALongWordStays) {
  std::istringstream typed("abcdefghijklmno p");
  input in(typed);
  EXPECT_EQ(in.word(12), "abcdefghijkl");
  EXPECT_EQ(in.word(12), "mno");
}

TEST(Input, AWordWithoutALimitHasAnyLength) {
  const std::string name(100000, 'x');
  std::istringstream typed(name);
  EXPECT_EQ(input(typed).word(), name);
}

TEST(Input, ControlAndNonAsciiBytesAreCharactersOfWords) {
  // Tab to carriage return are white space, their neighbours are not.
  const std::string word("a\0\x01\x08\x0e\xff", 6);
  std::istringstream typed(word + " b");
  input in(typed);
  EXPECT_EQ(in.word(), word);
  EXPECT_EQ(in.word(), "b");
}

TEST(Input, ANumberThatEndsTheInputIsGood) {
  std::istringstream typed("17");
  input in(typed);
  EXPECT_EQ(in.integer(), 17);
  EXPECT_THROW(in.integer(), end_of_input);
}

TEST(Input, AMalformedNumberIsToldFromTheEndOfTheInput) {
  std::istringstream malformed("x");
  EXPECT_THROW(input(malformed).integer(), malformed_number);
  std::istringstream ended("  \n");
  EXPECT_THROW(input(ended).integer(), end_of_input);
  std::istringstream sign("-");
  EXPECT_THROW(input(sign).integer(), end_of_input);
  std::istringstream slash("3/");
  EXPECT_THROW(input(slash).coefficient(), end_of_input);
}

TEST(Input, ReadingGoesOnBehindAMalformedNumber) {
  std::istringstream typed("-x 5");
  input in(typed);
  EXPECT_THROW(in.integer(), malformed_number);
  EXPECT_EQ(in.word(), "x");
  EXPECT_EQ(in.integer(), 5);
}

TEST(Input, AnIntegerThatDoesNotFitIsMalformedAndTaken) {
  std::istringstream typed("2147483647 2147483648 -2147483648 -2147483649 +7 99999999999999999999");
  input in(typed);
  EXPECT_EQ(in.integer(), 2147483647);
  EXPECT_THROW(in.integer(), malformed_number);
  EXPECT_EQ(in.integer(), -2147483647 - 1);
  EXPECT_THROW(in.integer(), malformed_number);
  EXPECT_EQ(in.integer(), 7);
  EXPECT_THROW(in.integer(), malformed_number);
  EXPECT_THROW(in.integer(), end_of_input);
}

TEST(Input, IntegerOrAnswersOnlyForMalformedNumbers) {
  std::istringstream typed("3 x");
  input in(typed);
  EXPECT_EQ(in.integer_or(9), 3);
  EXPECT_EQ(in.integer_or(9), 9);
  EXPECT_EQ(in.word(), "x");
  EXPECT_THROW(in.integer_or(9), end_of_input);
}

TEST(Input, TheLineEndIsSeenButNotTaken) {
  std::istringstream typed(" \n");
  input in(typed);
  EXPECT_FALSE(in.at_line_end());
  in.skip_character();
  EXPECT_TRUE(in.at_line_end());
  EXPECT_TRUE(in.at_line_end());
  in.skip_character();
  EXPECT_THROW(in.at_line_end(), end_of_input);
  EXPECT_THROW(in.skip_character(), end_of_input);
}

TEST(Input, TheRestOfALineBeginsWithItsFirstCharacterThatIsNotWhiteSpace) {
  std::istringstream typed(" \t\r x  y \nz");
  input in(typed);
  std::ostringstream rest;
  EXPECT_TRUE(in.line_goes_on());
  in.copy_rest_of_line(rest);
  EXPECT_EQ(rest.str(), "x  y ");
  EXPECT_TRUE(in.at_line_end());
  EXPECT_FALSE(in.line_goes_on());
  EXPECT_TRUE(in.at_line_end());
  EXPECT_EQ(in.word(), "z");
  EXPECT_FALSE(in.line_goes_on());
}

TEST(Input, TheRestOfALineCanBeDropped) {
  std::istringstream typed("x y z\nnext");
  input in(typed);
  in.drop_rest_of_line();
  EXPECT_TRUE(in.at_line_end());
  in.drop_rest_of_line();
  EXPECT_EQ(in.word(), "next");
  in.drop_rest_of_line();
  EXPECT_THROW(in.word(), end_of_input);
}

}  // namespace
}  // namespace zep::tests
