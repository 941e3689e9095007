// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/execution.h"

#include <gtest/gtest.h>

#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "front/commands/command.h"
#include "tests/captured.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

// A session in which A is being made: until it has its scheme, it is of another type.
struct session_with_A {
  std::istringstream keyboard{"A"};
  workspace shared;
  session z{shared, keyboard};
  std::optional<reservation> A = reservation::read(z.typed, shared.var, shared.wrong);
};

TEST(Execution, ASchemeCommandRefusesAnIdentifierOfAnotherType) {
  session_with_A s;
  for (const command_record& record : command) {
    if (record.kind != command_kind::scheme_identifier) continue;
    const captured out(std::cout);
    execute(s.z, record, "A");
    EXPECT_EQ(out.text(), "indentifier of wrong typ\n") << record.name;
  }
  EXPECT_FALSE(s.z.quit);
}

TEST(Execution, DelAndDisplayAcceptAnIdentifierOfAnotherType) {
  session_with_A s;
  const captured out(std::cout);
  execute(s.z, *find_command("display"), "A");
  EXPECT_EQ(out.text(), ":\n");
  execute(s.z, *find_command("del"), "A");
  EXPECT_EQ(out.text(), ":\nA deleted\n");
  EXPECT_EQ(s.shared.wrong.number(), 0);
}

TEST(Execution, CountsWhatItComplainsOf) {
  session_with_A s;
  const captured out(std::cout);
  execute(s.z, *find_command("alpha"), std::nullopt);
  EXPECT_EQ(s.shared.wrong.number(), 1);
  execute(s.z, *find_command("del"), "B");
  EXPECT_EQ(s.shared.wrong.number(), 2);
  execute(s.z, *find_command("alpha"), "A");
  EXPECT_EQ(s.shared.wrong.number(), 3);
  EXPECT_EQ(out.text(),
            "command needs indentifier\nindentifier unknown\nindentifier of wrong typ\n");
}

TEST(Execution, OfACommandThatTakesNothingLooksForNoIdentifier) {
  session_with_A s;
  const captured out(std::cout);
  execute(s.z, *find_command("quiet"), std::nullopt);
  EXPECT_FALSE(s.shared.report.is_verbose());
  execute(s.z, *find_command("quit"), std::nullopt);
  EXPECT_TRUE(s.z.quit);
  EXPECT_EQ(out.text(), "");
}

TEST(Execution, EveryCommandForASchemeChecksItsIdentifier) {
  for (const command_record& record : command) {
    ASSERT_NE(record.action, nullptr) << record.name;
    if (record.kind != command_kind::scheme_identifier) continue;
    const std::string name = record.name;
    EXPECT_EQ(type_in("random A 2\n" + name + "\n" + name + " B\n").out,
              "% " + line + "% command needs indentifier\n% indentifier unknown\n% ");
  }
}

}  // namespace
}  // namespace zep::tests
