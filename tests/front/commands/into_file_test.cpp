// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/into_file.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/front/file_name.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

const std::string cant_open =
    "can't open file\ncan't read scheme because of different dimensions\n"
    "command or indentifier unknown\n";

TEST(IntoFile, TheNameIsAskedForAndReadAsOneWord) {
  std::istringstream keyboard("\n  some/name.txt more");
  workspace shared;
  session z(shared, keyboard);
  const captured out(std::cout);
  EXPECT_EQ(ask_filename(z), "some/name.txt");
  EXPECT_EQ(out.text(), "enter filename : ");
  EXPECT_EQ(shared.prompt.take(), awaited::file_name);
  EXPECT_EQ(z.typed.word(), "more");
  EXPECT_THROW(ask_filename(z), end_of_input);
}

TEST(IntoFile, WritesTheFileThatIsNamedInPlaceOfWhatItHeld) {
  const file_name name;
  for (const std::string text : {"something long\n", "short\n", ""}) {
    std::istringstream keyboard(name.text());
    workspace shared;
    session z(shared, keyboard);
    const captured out(std::cout);
    EXPECT_TRUE(into_file(z, [&](std::ostream& to) { to << text; }));
    EXPECT_EQ(name.contents(), text);
    EXPECT_EQ(out.text(), "enter filename : ");
    EXPECT_EQ(shared.wrong.number(), 0);
  }
}

TEST(IntoFile, GoesOnBehindWhatTheFileHeldWhereThatIsKept) {
  const file_name name;
  complaints wrong;
  for (const std::string text : {"one\n", "two\n"}) {
    EXPECT_TRUE(into_named_file(wrong, name.text(), existing_contents::keep,
                                [&](std::ostream& to) { to << text; }));
  }
  EXPECT_EQ(name.contents(), "one\ntwo\n");
  EXPECT_EQ(wrong.number(), 0);
}

TEST(IntoFile, ComplainsOfWhatCantBeOpenedAndWritesNothing) {
  std::istringstream keyboard("/nowhere/at/all");
  workspace shared;
  session z(shared, keyboard);
  const captured out(std::cout);
  EXPECT_FALSE(into_file(z, [](std::ostream&) { ADD_FAILURE(); }));
  EXPECT_EQ(out.text(), "enter filename : " + cant_open);
  EXPECT_EQ(shared.wrong.number(), 1);
}

TEST(IntoFile, OpensNothingWhenTheInputEndsBeforeTheName) {
  std::istringstream keyboard(" \n");
  workspace shared;
  session z(shared, keyboard);
  const captured out(std::cout);
  EXPECT_THROW(into_file(z, [](std::ostream&) { ADD_FAILURE(); }), end_of_input);
  EXPECT_EQ(shared.wrong.number(), 0);
}

struct given_up {};

// Writes some text into the file and gives up.
void give_up(const file_name& name, existing_contents existing, const std::string& text) {
  complaints wrong;
  const auto write_to = [&](std::ostream& to) {
    to << text;
    throw given_up();
  };
  EXPECT_THROW(into_named_file(wrong, name.text(), existing, write_to), given_up);
}

TEST(IntoFile, LeavesNoHalfOfAResultWhereWritingIsGivenUp) {
  const std::string longer_than_any_buffer(100000, 'x');
  const file_name name;
  complaints wrong;
  into_named_file(wrong, name.text(), existing_contents::drop,
                  [](std::ostream& to) { to << "before\n"; });
  // Nothing has been written yet.
  give_up(name, existing_contents::drop, "");
  EXPECT_EQ(name.contents(), "before\n");
  give_up(name, existing_contents::keep, longer_than_any_buffer);
  EXPECT_EQ(name.contents(), "before\n");
  give_up(name, existing_contents::drop, longer_than_any_buffer);
  EXPECT_EQ(name.contents(), "");
}

}  // namespace
}  // namespace zep::tests
