// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/completion.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "front/commands/command.h"
#include "front/terminal/prompt.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

constexpr awaited at_command = awaited::command;
constexpr awaited at_filename = awaited::file_name;

bool offers(const completions& found, const std::string& word) {
  return std::find(found.words.begin(), found.words.end(), word) != found.words.end();
}

class Completion : public testing::Test {
 protected:
  Completion() { type_in(shared_, "random first 2\nrandom second 2\n"); }

  completions found(awaited what, const std::string& before) const {
    return complete(shared_.var, what, before);
  }

 private:
  workspace shared_;
};

TEST_F(Completion, OffersCommandsAndIdentifiersWhereACommandIsAwaited) {
  for (const std::string before : {"", "  "}) {
    const completions all = found(at_command, before);
    EXPECT_FALSE(all.files);
    EXPECT_EQ(all.words.size(), command.size() + 2);
    EXPECT_TRUE(offers(all, "hilbertfn"));
    EXPECT_TRUE(offers(all, "first"));
  }
}

TEST_F(Completion, OffersIdentifiersBehindACommandThatTakesOne) {
  const completions behind = found(at_command, "alpha ");
  EXPECT_EQ(behind.words, (std::vector<std::string>{"first", "second"}));
  EXPECT_FALSE(behind.files);
  EXPECT_EQ(found(at_command, "del  ").words.size(), 2U);
}

TEST_F(Completion, OffersNothingBehindACommandThatTakesNone) {
  for (const std::string before : {"help ", "char ", "get ", "nonsense ", "first "}) {
    EXPECT_TRUE(found(at_command, before).words.empty()) << before;
    EXPECT_FALSE(found(at_command, before).files) << before;
  }
}

TEST_F(Completion, OffersFileNamesWhereTheCommandAsksForOne) {
  EXPECT_TRUE(found(at_command, "putsep first ").files);
  EXPECT_TRUE(found(at_command, "scheme third ").files);
  EXPECT_FALSE(found(at_command, "sep first ").files);
  EXPECT_FALSE(found(at_command, "putsep first file ").files);
  EXPECT_TRUE(found(at_filename, "").files);
  EXPECT_FALSE(found(at_filename, "file ").files);
}

TEST_F(Completion, OffersNothingWhereANumberIsAwaited) {
  const completions none = found(awaited::answer, "");
  EXPECT_TRUE(none.words.empty());
  EXPECT_FALSE(none.files);
  EXPECT_TRUE(found(awaited::more, "").words.empty());
}

}  // namespace
}  // namespace zep::tests
