// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/command.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "base/output.h"
#include "tests/front/transcript.h"

namespace zep::tests {
namespace {

TEST(CommandTable, IsAlphabeticalWithNamesThatFitAWord) {
  for (std::size_t c = 0; c + 1 < command.size(); ++c) {
    EXPECT_LT(std::string_view(command[c].name), std::string_view(command[c + 1].name));
  }
  for (const command_record& record : command) {
    EXPECT_LT(std::string_view(record.name).size(), std::size_t{identifier_length});
  }
}

TEST(CommandTable, FindsCommandsByTheirWholeName) {
  for (const command_record& record : command) EXPECT_EQ(find_command(record.name), &record);
  EXPECT_EQ(find_command("alph"), nullptr);
  EXPECT_EQ(find_command("alphas"), nullptr);
  EXPECT_EQ(find_command(""), nullptr);
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

TEST(Help, ListsSixNamesARowInColumnsOfThirteen) {
  std::string expected = "% list of commands in alphabetical order :";
  for (std::size_t c = 0; c < command.size(); ++c) {
    std::string name = command[c].name;
    name.resize(13, ' ');
    expected += (c % 6 == 0 ? "\n" : "") + name;
  }
  EXPECT_EQ(type_in("help\n").out, expected + "\n" + line + "% ");
}

TEST(Help, FillsTheLineLength) {
  const captured out(std::cout);
  help();
  std::istringstream rows(out.text());
  std::string row;
  std::getline(rows, row);
  std::getline(rows, row);
  // As many columns as there is room for.
  EXPECT_LT(static_cast<int>(row.size()), LL);
  EXPECT_GE(static_cast<int>(row.size()) + 13, LL);
  while (rows.peek() != '-' && std::getline(rows, row)) {
  }
  std::getline(rows, row);
  EXPECT_EQ(row + "\n", Line);
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
}  // namespace zep::tests
