// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <new>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

#include "front/commands/command.h"
#include "front/program.h"
#include "tests/captured.h"
#include "tests/robustness/carried_out.h"
#include "tests/robustness/forked_run.h"
#include "tests/robustness/random_sessions.h"
#include "tests/robustness/working_folder.h"

namespace zep::tests {
namespace {

// Makes the folder with the point files the current one while it lives.
class within_working_folder {
 public:
  within_working_folder() : before_(std::filesystem::current_path()) {
    fill_working_folder(scratch_.path() / "work");
    std::filesystem::current_path(scratch_.path() / "work");
  }
  ~within_working_folder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }
  within_working_folder(const within_working_folder&) = delete;
  within_working_folder& operator=(const within_working_folder&) = delete;

 private:
  scratch_folder scratch_;
  std::filesystem::path before_;
};

std::string output_of(void (*carry_out)(const std::string&), const std::string& session) {
  const captured out(std::cout);
  const captured err(std::cerr);
  carry_out(session);
  return out.text();
}

// The sessions that are stopped at every byte.

std::vector<std::string> prefix_sessions() {
  std::vector<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(ZEP_PREFIXES)) {
    names.push_back(file.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string prefix_session(const std::string& name) {
  const std::ifstream file(std::filesystem::path(ZEP_PREFIXES) / (name + ".zep"), std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void run(const std::string& session) {
  std::istringstream in(session);
  run_program(in);
}

class Prefixes : public testing::TestWithParam<std::string> {};

TEST_P(Prefixes, TheInputMayEndBehindEveryByte) {
  const within_working_folder here;
  const std::string session = prefix_session(GetParam());
  ASSERT_FALSE(session.empty());
  for (std::size_t length = 0; length <= session.size(); ++length) {
    const std::string out = output_of(run, session.substr(0, length));
    EXPECT_TRUE(ends_with_farewell(out)) << "after " << length << " bytes:\n" << out;
  }
}

INSTANTIATE_TEST_SUITE_P(All, Prefixes, testing::ValuesIn(prefix_sessions()),
                         [](const auto& session) { return session.param; });

TEST(Prefixes, UseAllCommands) {
  const within_working_folder here;
  command_set commands(command.size());
  for (const std::string& name : prefix_sessions()) {
    add_announced(output_of(announce_commands, prefix_session(name)), commands);
  }
  EXPECT_EQ(missing_commands(commands), "");
}

// The random sessions.

TEST(RandomSessions, DependOnNothingButTheirNumber) {
  EXPECT_EQ(random_session(1), random_session(1));
  EXPECT_NE(random_session(1), random_session(2));
}

TEST(RandomSessions, CarryOutEveryCommand) {
  constexpr unsigned sessions = 500;
  const scratch_folder scratch;
  command_set commands(command.size());
  for (unsigned seed = 1; seed <= sessions; ++seed) {
    // Those that divide by zero end their process.
    const outcome run =
        run_forked(scratch.path(), [seed] { announce_commands(random_session(seed)); });
    add_announced(run.out, commands);
  }
  EXPECT_EQ(missing_commands(commands), "");
}

// The runs themselves.

TEST(ForkedRun, TellsHowASessionEnds) {
  const scratch_folder scratch;
  EXPECT_EQ(fault_of(run_session(scratch.path(), "list\nquit\n")), "");
  EXPECT_EQ(fault_of(run_session(scratch.path(), "get A 1\n1 2 3/0 4\n")), "");
  EXPECT_EQ(fault_of(run_forked(scratch.path(), [] {})), "no farewell");
  EXPECT_EQ(fault_of(run_forked(scratch.path(), [] { std::exit(1); })),
            "status 1 without a division by zero");
  EXPECT_EQ(fault_of(run_forked(scratch.path(), [] { std::exit(10); })), "status 10");
  EXPECT_EQ(fault_of(run_forked(scratch.path(), [] { static_cast<void>(std::raise(SIGKILL)); })),
            "ended by signal 9");
  EXPECT_EQ(fault_of(run_forked(scratch.path(), [] { static_cast<void>(std::raise(SIGALRM)); })),
            "hangs");
}

#ifdef ZEP_SANITIZE
TEST(ForkedRun, FindsLeaks) {
  const scratch_folder scratch;
  const outcome run = run_forked(scratch.path(), [] {
    // The address must not stay anywhere.
    static volatile std::size_t size = 1000;
    for (int i = 0; i < 10; ++i) static_cast<void>(::operator new(size));
  });
  EXPECT_EQ(fault_of(run), "sanitizer report");
  EXPECT_NE(run.err.find("LeakSanitizer"), std::string::npos) << run.err;
}
#endif

}  // namespace
}  // namespace zep::tests
