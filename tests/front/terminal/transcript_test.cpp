// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/transcript.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>

#include "tests/flushes.h"

namespace zep::tests {
namespace {

std::string all_of(std::streambuf& buffer) {
  std::ostringstream text;
  text << &buffer;
  return text.str();
}

TEST(RepeatedInput, HandsOnWhatItReadsAndRepeatsIt) {
  for (const std::string text : {"a\nbc\n\nd\n", "\n", "one line\n"}) {
    std::stringbuf source(text);
    std::ostringstream repeat;
    repeated_input input(source, repeat);
    EXPECT_EQ(all_of(input), text);
    EXPECT_EQ(repeat.str(), text);
  }
}

TEST(RepeatedInput, EndsALastLineOnlyWhereItIsRepeated) {
  std::stringbuf source("a\nb");
  std::ostringstream repeat;
  repeated_input input(source, repeat);
  EXPECT_EQ(all_of(input), "a\nb");
  EXPECT_EQ(repeat.str(), "a\nb\n");
}

TEST(RepeatedInput, RepeatsALineNoSoonerThanItIsLookedAt) {
  std::stringbuf source("a\nb\n");
  std::ostringstream repeat;
  repeated_input input(source, repeat);
  std::istream in(&input);
  EXPECT_EQ(repeat.str(), "");
  std::string word;
  in >> word;
  EXPECT_EQ(repeat.str(), "a\n");
  in >> word;
  EXPECT_EQ(repeat.str(), "a\nb\n");
}

TEST(RepeatedInput, BringsALineOutBeforeItIsCarriedOut) {
  std::stringbuf source("a\nb\n");
  noted_flushes seen;
  std::ostream repeat(&seen);
  repeated_input input(source, repeat);
  std::istream in(&input);
  std::string word;
  in >> word;
  EXPECT_EQ(seen.flushed(), "a\n");
}

TEST(RepeatedInput, OfNothingIsNothing) {
  std::stringbuf source("");
  std::ostringstream repeat;
  repeated_input input(source, repeat);
  EXPECT_EQ(input.sgetc(), std::char_traits<char>::eof());
  EXPECT_EQ(repeat.str(), "");
}

TEST(DoubledOutput, WritesBothStreamsWhileItLives) {
  std::ostringstream first;
  std::ostringstream second;
  first << "before";
  {
    doubled_output doubled(first, second);
    first << " during " << 1 << '!' << std::flush;
  }
  first << " after";
  EXPECT_EQ(first.str(), "before during 1! after");
  EXPECT_EQ(second.str(), " during 1!");
}

TEST(DoubledOutput, LeavesAStreamThatCantWriteAsItIs) {
  std::ostringstream first;
  std::ostringstream second;
  {
    doubled_output doubled(first, second);
    first.setstate(std::ios::badbit);
  }
  EXPECT_TRUE(first.bad());
}

}  // namespace
}  // namespace zep::tests
