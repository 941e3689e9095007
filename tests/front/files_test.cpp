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
  EXPECT_FALSE(source_file("/").is_open());
  EXPECT_FALSE(source_file("/nowhere/at/all").is_open());
  EXPECT_TRUE(source_file("/dev/null").is_open());
}

TEST(Files, ANameIsNotCutAtANul) {
  EXPECT_FALSE(source_file(std::string("/dev/null\0more", 14)).is_open());
}

}  // namespace
}  // namespace zep
