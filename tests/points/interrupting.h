// SPDX-License-Identifier: GPL-3.0-or-later
// Interrupting what is done with a set of points, at every moment.
#pragma once

#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>
#include <optional>
#include <string>

#include "base/interrupt.h"
#include "tests/points/computing.h"
#include "tests/points/everything.h"

namespace zep::tests {

// Interrupts what is under way once while it lives: at the k-th check in the paranoid build, which
// counts them; otherwise after k times so many microseconds. At once for k = 0.
class interruption {
 public:
  explicit interruption(int k) {
    if (k == 0) {
      request_interrupt();
    } else if constexpr (paranoid) {
      at_check_.emplace(k);
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

  std::optional<interrupt_at_check> at_check_;
  void (*handler_before_)(int) = SIG_ERR;
};

// What a command writes and tells, and the set that it leaves.
struct outcome {
  written texts;
  std::string set_after;
};

// The set tells this reporter.
inline outcome outcome_of(const named_command& command, scheme& X, told& reporter) {
  reporter.forget();
  std::ostringstream given;
  command.run(given, X);
  return {{given.str(), reporter.out, reporter.err}, contents(X)};
}

inline void expect_equal(const outcome& found, const outcome& expected) {
  EXPECT_EQ(found.texts.given, expected.texts.given);
  EXPECT_EQ(found.texts.out, expected.texts.out);
  EXPECT_EQ(found.texts.err, expected.texts.err);
  EXPECT_EQ(found.set_after, expected.set_after);
}

// The ring in force, in all forms in which it is read.
inline void expect_in_force(const arith::ring& R) {
  EXPECT_EQ(current_ring(), R);
  EXPECT_EQ(dim, R.n);
  EXPECT_EQ(proj, R.n + 1);
  EXPECT_EQ(Fp8::prime, R.p);
  EXPECT_EQ(monom_ordering_lt, R.order == term_order::deglex ? deglex_lt : degrevlex_lt);
}

// A set for which some things have been computed, and a command for it.
class interrupted_command {
 public:
  interrupted_command(told_set& start, const named_command& command)
      : start_(start), command_(command), contents_(contents(start.X)), ring_(current_ring()) {
    scheme X = start_.X;
    undisturbed_ = outcome_of(command_, X, start_.reporter);
  }

  // Interrupts the command at moment k. False when it was over before.
  bool ends_at(int k) const {
    scheme X = start_.X;
    const results before = X.known();
    try {
      const interruption when(k);
      expect_equal(outcome_of(command_, X, start_.reporter), undisturbed_);
      return false;
    } catch (const interrupted&) {
    }
    expect_in_force(ring_);
    // Done once more, it goes on from what was complete, and ends in the same way.
    scheme half_way = X;
    EXPECT_EQ(outcome_of(command_, half_way, start_.reporter).set_after, undisturbed_.set_after);
    X.restore(before);
    EXPECT_EQ(contents(X), contents_);
    EXPECT_TRUE(same_results(X.known(), start_.X.known()));
    expect_equal(outcome_of(command_, X, start_.reporter), undisturbed_);
    return true;
  }

 private:
  told_set& start_;
  const named_command& command_;
  std::string contents_;
  ring ring_;
  outcome undisturbed_;
};

// Moments from the start to behind the end, closer at first; returns how many came before the end.
inline int interrupt_at_many_moments(told_set& start, const named_command& command) {
  const interrupted_command test(start, command);
  const int most = 20000;
  int number = 0;
  for (int k = 0; k < most && test.ends_at(k); k += 1 + k / 3) {
    ++number;
    if (::testing::Test::HasFailure()) break;
  }
  return number;
}

// The same for all commands, on a few sets with each history; returns how often a command ended.
inline int interrupt_all(const std::vector<named_command>& commands) {
  int number = 0;
  for_each_of_a_few_sets([&](const std::vector<coordinates>& points) {
    for (const named_command& history : histories()) {
      told_set start(points);
      std::ostringstream dropped;
      history.run(dropped, start.X);
      for (const named_command& command : commands) {
        SCOPED_TRACE(std::string(command.name) + " after " + history.name);
        number += interrupt_at_many_moments(start, command);
        if (::testing::Test::HasFailure()) return;
      }
    }
  });
  return number;
}

// A request that is there before a command begins ends each of them.
inline void interrupt_each_at_its_start(const std::vector<named_command>& commands) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(47);
  told_set start(random_points(20, random));
  for (const named_command& command : commands) {
    SCOPED_TRACE(command.name);
    EXPECT_TRUE(interrupted_command(start, command).ends_at(0));
  }
}

}  // namespace zep::tests
