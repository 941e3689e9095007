#include "front/commands/completion.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "front/commands/command.h"
#include "front/terminal/prompt.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

const std::string at_command(command_prompt);
const std::string at_filename(filename_prompt);

bool offers(const completions& found, const std::string& word) {
  return std::ranges::find(found.words, word) != found.words.end();
}

class Completion : public testing::Test {
 protected:
  Completion() {
    const captured out(std::cout);
    const captured err(std::cerr);
    set_defaults(z_);
    parser(z_);
  }

  completions found(const std::string& prompt, const std::string& before) const {
    return complete(z_.var, prompt, before);
  }

 private:
  std::istringstream typed_{"random first 2\nrandom second 2\n"};
  session z_{typed_};
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
  const completions none = found("enter number of points : ", "");
  EXPECT_TRUE(none.words.empty());
  EXPECT_FALSE(none.files);
  EXPECT_TRUE(found("", "").words.empty());
}

}  // namespace
}  // namespace zep::tests
