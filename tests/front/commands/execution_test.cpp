#include "front/commands/execution.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>

#include "front/commands/command.h"
#include "tests/captured.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

TEST(Execution, ANumberOutsideDoesNothing) {
  std::istringstream nothing;
  session z(nothing);
  const captured out(std::cout);
  execute(z, no_of_commands(), no_identifier);
  execute(z, -1, no_identifier);
  EXPECT_EQ(out.text(), "");
  EXPECT_FALSE(z.quit);
}

TEST(Execution, ASchemeCommandRefusesAnIdentifierOfAnotherType) {
  std::istringstream nothing;
  session z(nothing);
  const captured out(std::cout);
  // A free record has a type of its own.
  execute(z, find_command("alpha"), 0);
  EXPECT_EQ(out.text(), "indentifier of wrong typ\n");
}

TEST(Execution, DelAndDisplayAcceptAnIdentifierOfAnotherType) {
  std::istringstream typed("A");
  session z(typed);
  // Until it has its scheme, a record has a type of its own.
  const auto without_scheme = reservation::read(z.typed, z.var);
  const captured out(std::cout);
  execute(z, find_command("display"), 0);
  EXPECT_EQ(out.text(), ":\n");
  execute(z, find_command("del"), 0);
  EXPECT_EQ(out.text(), ":\nA deleted\n");
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
