// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/error.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/captured.h"

namespace zep::tests {
namespace {

std::string text_of(error_code code) {
  const captured out(std::cout);
  complaints().error(code);
  return out.text();
}

TEST(Error, EveryNumberHasItsText) {
  using enum error_code;
  EXPECT_EQ(text_of(cannot_open_file),
            "can't open file\n"
            "can't read scheme because of different dimensions\n"
            "command or indentifier unknown\n");
  EXPECT_EQ(text_of(different_dimensions),
            "can't read scheme because of different dimensions\n"
            "command or indentifier unknown\n");
  EXPECT_EQ(text_of(unknown_word), "command or indentifier unknown\n");
  EXPECT_EQ(text_of(needs_identifier), "command needs indentifier\n");
  EXPECT_EQ(text_of(not_alphanumeric), "indentifiers have to consist only of alnums\n");
  EXPECT_EQ(text_of(unknown_identifier), "indentifier unknown\n");
  EXPECT_EQ(text_of(wrong_type), "indentifier of wrong typ\n");
  EXPECT_EQ(text_of(memory_exceeded), "identifier memory exceeded\n");
  EXPECT_EQ(text_of(already_exists), "indentifier already exists\n");
}

TEST(Error, NumbersStayAsTheyAre) {
  const std::pair<error_code, int> numbers[] = {
      {error_code::cannot_open_file, 30},  {error_code::different_dimensions, 31},
      {error_code::unknown_word, 102},     {error_code::needs_identifier, 104},
      {error_code::not_alphanumeric, 105}, {error_code::unknown_identifier, 107},
      {error_code::wrong_type, 108},       {error_code::memory_exceeded, 110},
      {error_code::already_exists, 111},
  };
  for (const auto& [code, number] : numbers) EXPECT_EQ(static_cast<int>(code), number);
}

TEST(Error, OtherNumbersSayNothing) {
  for (const int code : {-1, 0, 29, 32, 103, 106, 109, 112}) {
    EXPECT_EQ(text_of(static_cast<error_code>(code)), "");
  }
}

TEST(Complaints, AreCountedOneByOneHoweverManyTextsTheyPrint) {
  const captured out(std::cout);
  complaints wrong;
  EXPECT_EQ(wrong.number(), 0);
  wrong.error(error_code::cannot_open_file);
  EXPECT_EQ(wrong.number(), 1);
  wrong.error(error_code::wrong_type);
  EXPECT_EQ(wrong.number(), 2);
}

TEST(Complaints, MayHaveNoNumberOrBePrintedElsewhere) {
  const captured out(std::cout);
  complaints wrong;
  wrong.complain("in plain words\n");
  EXPECT_EQ(out.text(), "in plain words\n");
  EXPECT_EQ(wrong.number(), 1);
  wrong.count();
  EXPECT_EQ(out.text(), "in plain words\n");
  EXPECT_EQ(wrong.number(), 2);
}

}  // namespace
}  // namespace zep::tests
