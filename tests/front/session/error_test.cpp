#include "front/session/error.h"

#include <gtest/gtest.h>

#include "tests/captured.h"

namespace zep::tests {
namespace {

std::string text_of(int code) {
  const captured out(std::cout);
  error(code);
  return out.text();
}

TEST(Error, EveryNumberHasItsText) {
  EXPECT_EQ(text_of(30),
            "can't open file\n"
            "can't read scheme because of different dimensions\n"
            "command or indentifier unknown\n");
  EXPECT_EQ(text_of(31),
            "can't read scheme because of different dimensions\n"
            "command or indentifier unknown\n");
  EXPECT_EQ(text_of(102), "command or indentifier unknown\n");
  EXPECT_EQ(text_of(104), "command needs indentifier\n");
  EXPECT_EQ(text_of(105), "indentifiers have to consist only of alnums\n");
  EXPECT_EQ(text_of(107), "indentifier unknown\n");
  EXPECT_EQ(text_of(108), "indentifier of wrong typ\n");
  EXPECT_EQ(text_of(110), "identifier memory exceeded\n");
  EXPECT_EQ(text_of(111), "indentifier already exists\n");
}

TEST(Error, OtherNumbersSayNothing) {
  for (const int code : {-1, 0, 29, 32, 103, 106, 109, 112}) EXPECT_EQ(text_of(code), "");
}

}  // namespace
}  // namespace zep::tests
