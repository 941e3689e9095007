#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "points/record/results_before.h"
#include "tests/points/computing.h"
#include "tests/points/everything.h"

namespace zep::tests {
namespace {

// Interrupts what is under way once while it lives: at the k-th check in the paranoid build, which
// counts them; otherwise after k times so many microseconds. At once for k = 0.
class interruption {
 public:
  explicit interruption(int k) {
    if (k == 0) {
      request_interrupt();
    } else if constexpr (paranoid) {
      interrupt_at_check(k);
    } else {
      handler_before_ = std::signal(SIGALRM, [](int) { request_interrupt(); });
      set_timer(k * microseconds);
    }
  }

  ~interruption() {
    if (handler_before_ != SIG_ERR) {
      set_timer(0);
      static_cast<void>(std::signal(SIGALRM, handler_before_));
    }
    interrupt_at_check(0);
    forget_interrupt();
  }

  interruption(const interruption&) = delete;
  interruption& operator=(const interruption&) = delete;

 private:
  static constexpr int microseconds = 5;

  static void set_timer(int after) {
    const itimerval once{{0, 0}, {0, after}};
    static_cast<void>(::setitimer(ITIMER_REAL, &once, nullptr));
  }

  void (*handler_before_)(int) = SIG_ERR;
};

// What a command writes, and the scheme that it leaves.
struct outcome {
  written texts;
  std::string scheme_after;
};

outcome outcome_of(const named_command& command, scheme& X) {
  const written texts = by([&](std::ostream& out) { command.run(out, X); });
  return {texts, contents(X)};
}

void expect_equal(const outcome& found, const outcome& expected) {
  EXPECT_EQ(found.texts.given, expected.texts.given);
  EXPECT_EQ(found.texts.out, expected.texts.out);
  EXPECT_EQ(found.texts.err, expected.texts.err);
  EXPECT_EQ(found.scheme_after, expected.scheme_after);
}

std::string record_of(const scheme& X) {
  scheme copy = X;
  return by([&](std::ostream& out) { out << copy; }).given;
}

// The state of the program beside the scheme.
std::vector<int> globals() {
  return {dim,       proj, counter, verbose, LL, static_cast<int>(Line.size()), monom_ordering,
          Fp8::prime};
}

// A set for which some things have been computed, and a command for it.
class interrupted_command {
 public:
  interrupted_command(const scheme& start, const named_command& command)
      : start_(start), command_(command), contents_(contents(start)), record_(record_of(start)) {
    scheme X = start_;
    undisturbed_ = outcome_of(command_, X);
  }

  // Interrupts the command at moment k. False when it was over before.
  bool ends_at(int k) const {
    scheme X = start_;
    counter = 3;
    const std::vector<int> globals_before = globals();
    const results_before results(X);
    try {
      const interruption when(k);
      expect_equal(outcome_of(command_, X), undisturbed_);
      return false;
    } catch (const interrupted&) {
      results.restore(X);
    }
    EXPECT_EQ(globals(), globals_before);
    EXPECT_EQ(contents(X), contents_);
    EXPECT_EQ(record_of(X), record_);
    expect_equal(outcome_of(command_, X), undisturbed_);
    return true;
  }

 private:
  const scheme& start_;
  const named_command& command_;
  std::string contents_;
  std::string record_;
  outcome undisturbed_;
};

// Moments from the start to behind the end, closer at first; returns how many came before the end.
int interrupt_at_many_moments(const scheme& start, const named_command& command) {
  const interrupted_command test(start, command);
  const int most = 20000;
  int number = 0;
  for (int k = 0; k < most && test.ends_at(k); k += 1 + k / 3) {
    ++number;
    if (::testing::Test::HasFailure()) break;
  }
  return number;
}

TEST(Interruption, LeavesASchemeAsItWasWheneverItComes) {
  int number = 0;
  for_each_of_a_few_sets([&](const std::vector<coordinates>& points) {
    for (const named_command& history : histories()) {
      scheme start = make_set(points);
      by([&](std::ostream& out) { history.run(out, start); });
      for (const named_command& command : all_commands()) {
        SCOPED_TRACE(std::string(command.name) + " after " + history.name);
        number += interrupt_at_many_moments(start, command);
        if (::testing::Test::HasFailure()) return;
      }
    }
  });
  EXPECT_GT(number, 500);
}

// Every command that does or writes anything for each point has a check.
TEST(Interruption, EndsEveryLongCommand) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(47);
  const scheme start = make_set(random_points(20, random));
  for (const named_command& command : all_commands()) {
    SCOPED_TRACE(command.name);
    EXPECT_TRUE(interrupted_command(start, command).ends_at(0));
  }
}

}  // namespace
}  // namespace zep::tests
