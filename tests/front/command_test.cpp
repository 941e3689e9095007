#include "front/command.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "tests/front/transcript.h"
#include "tests/ring_in_force.h"

namespace zep {
namespace {

TEST(CommandTable, IsAlphabeticalWithNamesThatFitAWord) {
  for (std::size_t c = 0; c + 1 < command.size(); ++c) {
    EXPECT_LT(std::string_view(command[c].name), std::string_view(command[c + 1].name));
  }
  for (const command_record& record : command) {
    EXPECT_LT(std::string_view(record.name).size(), std::size_t{identifier_length});
  }
}

TEST(CommandTable, KnowsEveryNumberThatOthersRelyOn) {
  EXPECT_EQ(find_command("alpha"), 0);
  EXPECT_EQ(find_command("display"), display_command);
  EXPECT_EQ(find_command("quit"), 51);
  EXPECT_EQ(find_command("writelinres"), 66);
  EXPECT_EQ(find_command("alph"), -1);
  EXPECT_EQ(find_command(""), -1);
}

TEST(CommandTable, ANumberOutsideDoesNothing) {
  std::istringstream nothing;
  session z(nothing);
  const captured out(std::cout);
  execute(z, no_of_commands, no_identifier);
  execute(z, -1, no_identifier);
  EXPECT_EQ(out.text(), "");
  EXPECT_FALSE(z.quit);
}

TEST(CommandTable, ASchemeCommandRefusesAnIdentifierOfAnotherType) {
  std::istringstream nothing;
  session z(nothing);
  const captured out(std::cout);
  // A free record has a type of its own.
  execute(z, find_command("alpha"), 0);
  EXPECT_EQ(out.text(), "indentifier of wrong typ\n");
}

TEST(CommandTable, DelAndDisplayAcceptAnIdentifierOfAnotherType) {
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

TEST(CommandTable, OnlyDelAndDisplayTakeAnIdentifierOfAnyType) {
  for (const command_record& record : command) {
    const std::string_view name = record.name;
    EXPECT_EQ(record.kind == command_kind::any_identifier, name == "del" || name == "display")
        << name;
  }
}

TEST(CommandTable, CommandsWithoutIdentifierAreTheSettingsAndTheCreatingOnes) {
  const std::string_view without[] = {"char",      "cyclotom", "cyclotom2", "cyclpol",     "deglex",
                                      "degrevlex", "del_all",  "dim",       "display_all", "exit",
                                      "gencycl",   "get",      "help",      "identifiers", "list",
                                      "quiet",     "quit",     "random",    "random2",     "range",
                                      "ring",      "root",     "scheme",    "verbose"};
  for (const command_record& record : command) {
    const bool listed =
        std::find(std::begin(without), std::end(without), record.name) != std::end(without);
    EXPECT_EQ(record.kind == command_kind::nothing, listed) << record.name;
  }
}

TEST(CommandTable, EveryCommandForASchemeChecksItsIdentifier) {
  for (const command_record& record : command) {
    ASSERT_NE(record.action, nullptr) << record.name;
    if (record.kind != command_kind::scheme_identifier) continue;
    const std::string name = record.name;
    EXPECT_EQ(type_in("random A 2\n" + name + "\n" + name + " B\n").out,
              "% " + line + "% command needs indentifier\n% indentifier unknown\n% ");
  }
}

TEST(Help, ListsSixNamesARowInColumnsOfThirteen) {
  const std::string out = type_in("help\n").out;
  EXPECT_EQ(out.substr(0, 42), "% list of commands in alphabetical order :");
  std::istringstream rows(out.substr(43));
  std::string row;
  for (int i = 0; i < 11; ++i) {
    ASSERT_TRUE(std::getline(rows, row));
    EXPECT_EQ(row.size(), 6U * 13U);
    EXPECT_EQ(
        row.substr(0, 13),
        std::string(command[static_cast<std::size_t>(6 * i)].name) +
            std::string(13 - std::string_view(command[static_cast<std::size_t>(6 * i)].name).size(),
                        ' '));
  }
  ASSERT_TRUE(std::getline(rows, row));
  EXPECT_EQ(row, "writelinres  ");
  ASSERT_TRUE(std::getline(rows, row));
  EXPECT_EQ(row + "\n", line);
}

TEST(Help, FillsTheLineLength) {
  const ring_in_force ring;
  for (const int columns : {1, 3, 10}) {
    set_line_length(13 * columns + 12);
    const captured out(std::cout);
    help();
    std::istringstream rows(out.text());
    std::string row;
    std::getline(rows, row);
    std::getline(rows, row);
    EXPECT_EQ(static_cast<int>(row.size()), 13 * columns);
    while (rows.peek() != '-' && std::getline(rows, row)) {
    }
    std::getline(rows, row);
    EXPECT_EQ(row + "\n", Line);
  }
}

TEST(Refusals, NameTheOtherProgram) {
  const std::string roots =
      "please use 'TORVEN' for computations over the field with n-th roots of unity\n" + line;
  const std::string cyclotomic = "please use 'TORVEN' for computing cyclotomic schemes\n" + line;
  EXPECT_EQ(type_in("root\ncyclpol\n").out, "% " + roots + "% " + roots + "% ");
  EXPECT_EQ(type_in("cyclotom\ncyclotom2\ngencycl\n").out,
            "% " + cyclotomic + "% " + cyclotomic + "% " + cyclotomic + "% ");
}

}  // namespace
}  // namespace zep
