// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/options.h"

#include <getopt.h>
#include <gtest/gtest.h>

#include <iostream>

#include "tests/captured.h"

namespace zep::tests {
namespace {

command_line read(std::vector<std::string> words) {
  words.insert(words.begin(), "zep");
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const captured out(std::cout);
  const captured err(std::cerr);
  // Makes the library begin anew.
  optind = 0;
  opterr = 0;
  return read_command_line(static_cast<int>(words.size()), arguments.data());
}

std::vector<source::kind> kinds(const command_line& line) {
  std::vector<source::kind> result;
  for (const source& s : line.chosen.sources) result.push_back(s.from);
  return result;
}

using enum source::kind;

TEST(Options, WithoutAnyReadStandardInputAsEver) {
  const command_line line = read({});
  EXPECT_FALSE(line.status);
  EXPECT_EQ(kinds(line), std::vector{standard_input});
  EXPECT_TRUE(line.chosen.decorated);
  EXPECT_FALSE(line.chosen.echo);
  EXPECT_FALSE(line.chosen.stop_on_error);
  EXPECT_FALSE(line.chosen.log);
  EXPECT_EQ(line.chosen.seed, 1234U);
}

TEST(Options, KeepSessionsInTheirOrder) {
  const command_line line = read({"a", "-e", "list", "-", "-q", "b", "-i", "--", "-c"});
  EXPECT_EQ(kinds(line), (std::vector{file, commands, standard_input, file, file, standard_input}));
  EXPECT_EQ(line.chosen.sources[0].text, "a");
  EXPECT_EQ(line.chosen.sources[1].text, "list\n");
  EXPECT_EQ(line.chosen.sources[4].text, "-c");
  EXPECT_FALSE(line.chosen.decorated);
}

TEST(Options, PartCommandsAtSemicolonsAndLineEnds) {
  EXPECT_EQ(read({"-e", "a;b\nc; d"}).chosen.sources[0].text, "a\nb\nc\n d\n");
}

TEST(Options, TakeTheSeedAndTheLogFile) {
  const command_line line = read({"--seed=5", "--log", "file", "--echo", "--stop-on-error"});
  EXPECT_EQ(line.chosen.seed, 5U);
  EXPECT_EQ(line.chosen.log, "file");
  EXPECT_TRUE(line.chosen.echo);
  EXPECT_TRUE(line.chosen.stop_on_error);
}

TEST(Options, EndTheProgramWhereNothingIsLeftToDo) {
  for (const char* const word : {"--help", "--version", "--commands"}) {
    EXPECT_EQ(read({word}).status, 0) << word;
  }
  for (const char* const word : {"--nonsense", "-x", "--seed", "--seed=", "--seed=-1", "-e"}) {
    EXPECT_EQ(read({word}).status, 2) << word;
  }
}

}  // namespace
}  // namespace zep::tests
