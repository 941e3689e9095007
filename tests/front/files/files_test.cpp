// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/files/files.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/front/file_name.h"

namespace zep::tests {
namespace {

TEST(Files, AFolderAndAMissingFileCantBeOpened) {
  EXPECT_FALSE(source_file("/").is_open());
  EXPECT_FALSE(source_file("/nowhere/at/all").is_open());
  EXPECT_TRUE(source_file("/dev/null").is_open());
}

TEST(Files, ANameIsNotCutAtANul) {
  EXPECT_FALSE(source_file(std::string("/dev/null\0more", 14)).is_open());
}

// Writes so much into the file as its writer would, and closes it or not.
void put_into(const file_name& file, const std::string& text, bool close,
              existing_contents existing = existing_contents::drop) {
  result_file result(file.text(), existing);
  ASSERT_TRUE(result.is_open());
  result.stream() << text;
  if (close) result.close();
}

// What is longer than any buffer.
const std::string long_text(100000, 'x');

TEST(ResultFile, TakesThePlaceOfWhatTheFileHeld) {
  const file_name file;
  for (const std::string& text : {long_text, std::string("short\n"), std::string()}) {
    put_into(file, text, true);
    EXPECT_EQ(file.contents(), text);
  }
}

TEST(ResultFile, GoesOnBehindWhatTheFileHeldWhenThatIsKept) {
  const file_name file;
  put_into(file, "one\n", true);
  put_into(file, "two\n", true, existing_contents::keep);
  put_into(file, "", true, existing_contents::keep);
  EXPECT_EQ(file.contents(), "one\ntwo\n");
}

TEST(ResultFile, ThatIsGivenUpBeforeItIsWrittenLeavesWhatWasThere) {
  const file_name file;
  put_into(file, "before\n", true);
  put_into(file, "", false);
  EXPECT_EQ(file.contents(), "before\n");
  {
    result_file result(file.text());
    result_file::abandon();
  }
  EXPECT_EQ(file.contents(), "before\n");
}

TEST(ResultFile, ThatIsGivenUpLaterIsEmpty) {
  const file_name file;
  put_into(file, "before\n", true);
  put_into(file, long_text, false);
  EXPECT_EQ(file.contents(), "");
}

TEST(ResultFile, ThatGoesOnLosesOnlyWhatWasWrittenWhenItIsGivenUp) {
  const file_name file;
  put_into(file, "before\n", true);
  put_into(file, long_text, false, existing_contents::keep);
  EXPECT_EQ(file.contents(), "before\n");
}

}  // namespace
}  // namespace zep::tests
