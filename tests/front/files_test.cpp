#include "front/files.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/captured.h"

namespace zep {
namespace {

TEST(Files, TheNameIsAskedForAndReadAsOneWord) {
  std::istringstream typed("\n  some/name.txt more");
  input in(typed);
  const captured out(std::cout);
  EXPECT_EQ(ask_filename(in), "some/name.txt");
  EXPECT_EQ(out.text(), "enter filename : ");
  EXPECT_EQ(in.word(), "more");
  EXPECT_THROW(ask_filename(in), end_of_input);
}

TEST(Files, AFolderAndAMissingFileCantBeOpened) {
  EXPECT_FALSE(open_for_reading("/").is_open());
  EXPECT_FALSE(open_for_reading("/nowhere/at/all").is_open());
  EXPECT_TRUE(open_for_reading("/dev/null").is_open());
}

TEST(Files, ANameIsNotCutAtANul) {
  EXPECT_FALSE(open_for_reading(std::string("/dev/null\0more", 14)).is_open());
}

}  // namespace
}  // namespace zep
