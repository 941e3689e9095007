// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/identifiers.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/front/transcript.h"
#include "tests/ring_in_force.h"
#include "tests/told.h"

namespace zep::tests {
namespace {

// Types the creation of S0, S1, ...; what that prints.
std::string make_sets(int n) {
  std::string typed;
  for (int i = 0; i < n; ++i) typed += "random S" + std::to_string(i) + " 1\n";
  return typed;
}

std::string sets_made(int n) {
  std::string printed;
  for (int i = 0; i < n; ++i) printed += "% " + line;
  return printed;
}

TEST(Identifiers, TakeTheLowestFreeRecord) {
  EXPECT_EQ(type_in(make_sets(3) + "del S1\nrandom B 1\nrandom C 1\nlist\n").out,
            sets_made(3) + "% S1 deleted\n" + sets_made(2) +
                "% scheme S0\nscheme B\nscheme S2\nscheme C\n% ");
}

TEST(Identifiers, AreFiftyAtMost) {
  EXPECT_EQ(type_in(make_sets(50) + "random T 1\nget U 1\ndel S49\nrandom T 1\n").out,
            sets_made(50) + "% identifier memory exceeded\nunexpected '1'\n" +
                "% identifier memory exceeded\nunexpected '1'\n% S49 deleted\n" + sets_made(1) +
                "% ");
}

TEST(Identifiers, ThatExistAreNotMadeAgain) {
  for (const std::string create : {"get", "random", "random2", "scheme"}) {
    EXPECT_EQ(type_in("random A 1\n" + create + " A 3\n").out,
              sets_made(1) + "% indentifier already exists\nunexpected '3'\n% ");
  }
}

TEST(Identifiers, ConsistOfLettersAndDigits) {
  for (const std::string name : {"a-b", "_", "A\xe9", ".", "A\x01"}) {
    EXPECT_EQ(type_in("get " + name + " 2\n").out,
              "% indentifiers have to consist only of alnums\nunexpected '2'\n% ");
  }
  EXPECT_EQ(type_in("random 7 1\nlist\n").out, sets_made(1) + "% scheme 7\n% ");
}

TEST(Identifiers, TakeEveryLetterAndDigitAndNoneOfTheirNeighbours) {
  for (const std::string name :
       {"0123456789", "ABCDEFGHIJKL", "MNOPQRSTUVWX", "YZabcdefghij", "klmnopqrstuv", "wxyz"}) {
    EXPECT_EQ(type_in("random " + name + " 1\nlist\n").out,
              sets_made(1) + "% scheme " + name + "\n% ");
  }
  for (const std::string name : {"/", ":", "@", "[", "`", "{", "AB/", "A:B"}) {
    EXPECT_EQ(type_in("random " + name + " 1\n").out,
              "% indentifiers have to consist only of alnums\nunexpected '1'\n% ");
  }
}

TEST(Identifiers, AreRefusedForTheirNameBeforeTheirNumber) {
  const std::string full = make_sets(50);
  const std::string made = sets_made(50);
  EXPECT_EQ(type_in(full + "random S7 1\n").out,
            made + "% indentifier already exists\nunexpected '1'\n% ");
  EXPECT_EQ(type_in(full + "random S-7 1\n").out,
            made + "% indentifiers have to consist only of alnums\nunexpected '1'\n% ");
}

TEST(Identifiers, AreCutToTwelveCharacters) {
  EXPECT_EQ(type_in("random abcdefghijklmn 1\nlist\n").out,
            "% malformed number\nunexpected 'mn 1'\n% % ");
  EXPECT_EQ(type_in("random abcdefghijkl7\nlist\n").out,
            sets_made(1) + "% scheme abcdefghijkl\n% ");
}

TEST(Identifiers, AreReservedWhileTheyAreBeingMadeAndFreedWhenThatFails) {
  EXPECT_EQ(
      type_in("random A 0\nlist\nrandom A 1\nlist\n").out,
      "% number of points has to be greater than zero !\n% " + sets_made(1) + "% scheme A\n% ");
}

TEST(Identifiers, AnEmptyTableListsAndDeletesNothing) {
  EXPECT_EQ(type_in("list\ndisplay_all\ndel_all\n").out, "% % % % ");
}

TEST(Identifiers, AreDisplayedWithTheirContentsOrListedByName) {
  const std::string A = "scheme consists of 1 points:\n<1:32:36:18>\n" + line;
  const std::string B = "scheme consists of 1 points:\n<1:16:9:37>\n" + line;
  EXPECT_EQ(type_in("random A 1\nrandom B 1\ndisplay B\ndisplay_all\nlist\n").out,
            sets_made(2) + "% scheme B:\n" + B + "% scheme A:\n" + A + "scheme B:\n" + B +
                "% scheme A\nscheme B\n% ");
}

TEST(Identifiers, AreDeletedOneByOneOrAllTogether) {
  EXPECT_EQ(type_in(make_sets(3) + "del S0\ndel S0\ndel_all\nlist\n").out,
            sets_made(3) + "% S0 deleted\n% indentifier unknown\n% S1 deleted\nS2 deleted\n" +
                line + "% % ");
}

// Reserves the name, which is a good one.
reservation reserve(const std::string& name, identifier_table& table) {
  std::istringstream typed(name);
  input in(typed);
  complaints wrong;
  auto reserved = reservation::read(in, table, wrong);
  EXPECT_EQ(wrong.number(), 0);
  return std::move(*reserved);
}

// A scheme of one point.
std::unique_ptr<scheme> some_scheme() { return std::make_unique<scheme>(matrix(dim, 1), nobody()); }

TEST(IdentifierTable, FindsNoFreeRecordByName) {
  identifier_table table;
  EXPECT_EQ(table.find("A"), nullptr);
  EXPECT_TRUE(table.names().empty());
}

TEST(IdentifierTable, DeletesQuietly) {
  const ring_in_force ring;
  identifier_table table;
  reserve("A", table).fill(some_scheme());
  ASSERT_NE(table.find("A"), nullptr);
  EXPECT_NE(table.find("A")->object, nullptr);
  const captured out(std::cout);
  table.del_all(true);
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(table.find("A"), nullptr);
  EXPECT_TRUE(table.names().empty());
}

TEST(IdentifierTable, FreesTheOneThatIsDeletedAndLeavesTheOthersWhereTheyAre) {
  const ring_in_force ring;
  identifier_table table;
  for (const char* const name : {"A", "B", "C"}) reserve(name, table).fill(some_scheme());
  const identifier* const first = table.find("A");
  const identifier* const last = table.find("C");
  const captured out(std::cout);
  identifier_table::del(*table.find("B"), true);
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(table.names(), (std::vector<std::string>{"A", "C"}));
  EXPECT_EQ(table.find("A"), first);
  EXPECT_EQ(table.find("C"), last);
  identifier_table::del(*table.find("A"), false);
  EXPECT_EQ(out.text(), "A deleted\n");
  EXPECT_EQ(table.names(), (std::vector<std::string>{"C"}));
}

TEST(IdentifierTable, DisplaysNeitherNameNorContentsOfAnotherType) {
  identifier_table table;
  const reservation without_scheme = reserve("A", table);
  const captured out(std::cout);
  table.list_all(false);
  EXPECT_EQ(out.text(), "\n");
  table.list_all(true);
  EXPECT_EQ(out.text(), "\n:\n");
}

TEST(Reservation, IsInTheTableFromTheStartAndFreedUnlessItIsFilled) {
  const ring_in_force ring;
  identifier_table table;
  {
    const reservation reserved = reserve("A", table);
    ASSERT_NE(table.find("A"), nullptr);
    EXPECT_EQ(table.find("A")->object, nullptr);
    EXPECT_EQ(table.names(), std::vector<std::string>{"A"});
  }
  EXPECT_EQ(table.find("A"), nullptr);
  {
    reservation reserved = reserve("A", table);
    reserved.fill(some_scheme());
  }
  ASSERT_NE(table.find("A"), nullptr);
  EXPECT_NE(table.find("A")->object, nullptr);
}

TEST(Reservation, IsFreedOnceThoughItIsMoved) {
  identifier_table table;
  {
    reservation first = reserve("A", table);
    const reservation second = std::move(first);
    EXPECT_NE(table.find("A"), nullptr);
  }
  EXPECT_EQ(table.find("A"), nullptr);
}

TEST(Reservation, CountsWhatItComplainsOf) {
  identifier_table table;
  const reservation taken = reserve("A", table);
  const captured out(std::cout);
  complaints wrong;
  std::istringstream typed("A a-b");
  input in(typed);
  EXPECT_FALSE(reservation::read(in, table, wrong));
  EXPECT_EQ(wrong.number(), 1);
  EXPECT_FALSE(reservation::read(in, table, wrong));
  EXPECT_EQ(wrong.number(), 2);
  EXPECT_EQ(out.text(),
            "indentifier already exists\nindentifiers have to consist only of alnums\n");
  EXPECT_THROW(reservation::read(in, table, wrong), end_of_input);
  EXPECT_EQ(wrong.number(), 2);
  EXPECT_EQ(table.names(), std::vector<std::string>{"A"});
}

}  // namespace
}  // namespace zep::tests
