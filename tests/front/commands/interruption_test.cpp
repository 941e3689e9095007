// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "front/commands/command.h"
#include "front/commands/execution.h"
#include "tests/front/file_name.h"
#include "tests/front/transcript.h"
#include "text/record.h"

namespace zep::tests {
namespace {

// Whether nothing has been computed or lost between these. Results never change, so the same ones
// are equal.
bool are_same(const results& a, const results& b) {
  // Names every member: a new one has to be added.
  const auto& [bu_mo, sep, beta_matrix, Can_Lf, min_Ix, socle, omega, is_CB, is_ar_Go, strands] = a;
  const auto& [linres, linid, linom] = strands;
  return bu_mo == b.bu_mo && sep == b.sep && beta_matrix == b.beta_matrix && Can_Lf == b.Can_Lf &&
         min_Ix == b.min_Ix && socle == b.socle && omega == b.omega && is_CB == b.is_CB &&
         is_ar_Go == b.is_ar_Go && linres == b.strands.linres && linid == b.strands.linid &&
         linom == b.strands.linom;
}

const std::string contents_before = "what the file holds\n";

// What a command leaves.
struct trace {
  bool ended = true;
  std::string out;
  std::string err;
  std::string file;
  // What is known of the set then, in words.
  std::string record;
};

void expect_equal(const trace& found, const trace& expected) {
  EXPECT_TRUE(found.ended);
  EXPECT_EQ(found.out, expected.out);
  EXPECT_EQ(found.err, expected.err);
  EXPECT_EQ(found.file, expected.file);
  EXPECT_EQ(found.record, expected.record);
}

// A command for the set A of a workspace, to be carried out again and again from the same start.
class command_for_A {
 public:
  command_for_A(workspace& shared, const command_record& todo)
      : shared_(shared), todo_(todo), before_(A().known()) {}

  // Carries it out, and interrupts it at its k-th check, where checks are counted; before it begins
  // for k = 0, never if there is no k.
  trace carried_out(std::optional<long> k) {
    std::ofstream(file_.text()) << contents_before;
    std::istringstream keyboard(typed_behind());
    session z(shared_, keyboard);
    const captured out(std::cout);
    const captured err(std::cerr);
    trace t;
    {
      const interrupt_at_check when(k.value_or(0));
      if (k == 0) request_interrupt();
      try {
        execute(z, todo_, "A");
      } catch (const interrupted&) {
        t.ended = false;
      }
    }
    t.out = out.text();
    t.err = err.text();
    t.file = file_.contents();
    std::ostringstream record;
    text::display(record, record, A());
    t.record = record.str();
    return t;
  }

  // Goes back to the start.
  void start_again() { A().restore(before_); }

  // Interrupts it at moment k. False when it was over before.
  bool can_be_interrupted_at(long k, const trace& undisturbed) {
    const trace t = carried_out(k);
    if (t.ended) {
      expect_equal(t, undisturbed);
    } else {
      EXPECT_TRUE(are_same(A().known(), before_));
      EXPECT_TRUE(undisturbed.out.starts_with(t.out)) << t.out;
      EXPECT_TRUE(undisturbed.err.starts_with(t.err)) << t.err;
      EXPECT_TRUE(is_whole(t.file, undisturbed.file)) << t.file;
      expect_equal(carried_out(std::nullopt), undisturbed);
    }
    start_again();
    return !t.ended;
  }

 private:
  scheme& A() { return *shared_.var.find("A")->object; }

  std::string typed_behind() const {
    const std::string_view arguments = todo_.arguments;
    if (arguments == "A N") return "2\n";
    if (arguments == "A FILE") return file_.text() + "\n";
    EXPECT_EQ(arguments, "A");
    return "\n";
  }

  // Nothing of a result, or the whole, as the command may be interrupted behind it. Of two that go
  // into one file, one behind the other, the first may be there alone.
  bool is_whole(const std::string& text, const std::string& result) const {
    if (text.empty() || text == contents_before || text == result) return true;
    return todo_.name == std::string_view("putlinres") && result.starts_with(text) &&
           result.find("\n1. matrix of linear resolution of w_R : \n") == text.size();
  }

  workspace& shared_;
  const command_record& todo_;
  results before_;
  file_name file_;
};

bool takes_a_set(const command_record& c) {
  return c.kind != command_kind::nothing && c.name != std::string_view("del");
}

// Moments from the start to behind the end, closer at first; returns how many came before the end.
// Only the first one where checks are not counted.
int interrupt_at_many_moments(workspace& shared, const command_record& todo) {
  command_for_A test(shared, todo);
  const trace undisturbed = test.carried_out(std::nullopt);
  EXPECT_TRUE(undisturbed.ended);
  test.start_again();
  const long most = paranoid ? 20000 : 1;
  int number = 0;
  for (long k = 0; k < most; k += 1 + k / 3) {
    if (test.can_be_interrupted_at(k, undisturbed)) {
      ++number;
    } else if (k > 0) {
      break;
    }
    if (::testing::Test::HasFailure()) break;
  }
  return number;
}

const std::string histories[] = {
    "",
    "bumo A\n",
    "is_gor A\n",
    "betamat A\nlinsyz A\n",
    "sep A\nbetamat A\nmin A\nsocle A\nomega A\nlinres A\n",
};

const std::string sets[] = {
    "get A 0\n",
    "dim 2\nrandom A 9\n",
    "char 31\ndeglex\nrandom A 8\n",
    "char 5\ndim 4\nrange 4\nrandom2 A 7\n",
    "char 6\ndim 2\nget A 5\n1 1 2 1 3 4 1 1 2 1 5 0 1 0 3\n",
};

TEST(InterruptedCommand, LeavesTheSetAsItWasAndTheFileWithoutAHalfOfAResult) {
  int number = 0;
  for (const std::string& set : sets) {
    for (const std::string& history : histories) {
      workspace shared;
      type_in(shared, set + history);
      ASSERT_NE(shared.var.find("A"), nullptr);
      for (const command_record& todo : command) {
        if (!takes_a_set(todo)) continue;
        SCOPED_TRACE(todo.name + (" after " + set + history));
        number += interrupt_at_many_moments(shared, todo);
        if (::testing::Test::HasFailure()) return;
      }
    }
  }
  EXPECT_GT(number, paranoid ? 5000 : 500);
}

// Every command that does or writes anything for each point has a check.
TEST(InterruptedCommand, EndsUnlessItDoesNothingForThePoints) {
  workspace shared;
  type_in(shared, "random A 20\n");
  for (const command_record& todo : command) {
    if (!takes_a_set(todo)) continue;
    const bool only_writes_a_table = std::string_view(todo.name).starts_with("writelin");
    command_for_A test(shared, todo);
    EXPECT_EQ(test.carried_out(0).ended, only_writes_a_table) << todo.name;
    test.start_again();
  }
}

TEST(InterruptedCommand, LeavesTheFileAsItWasUntilWritingBegins) {
  workspace shared;
  type_in(shared, "random A 20\n");
  for (const std::string name : {"putsep", "putgbasis", "putbeta", "putmin", "putomega"}) {
    command_for_A test(shared, *find_command(name));
    const trace t = test.carried_out(0);
    EXPECT_FALSE(t.ended) << name;
    EXPECT_EQ(t.file, contents_before) << name;
  }
}

}  // namespace
}  // namespace zep::tests
