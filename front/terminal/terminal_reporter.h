// SPDX-License-Identifier: GPL-3.0-or-later
// What computations tell, on the terminal.
#pragma once

#include "base/reporter.h"

namespace zep::front {

// Writes words and countdowns on standard error and the countdown of a walk over subsets on
// standard output, both only while it is verbose; in any case the marks, and a line of dashes where
// a computation ends, on standard output.
class terminal_reporter : public reporter {
 public:
  bool is_verbose() const { return verbose_; }
  void be_verbose(bool verbose) { verbose_ = verbose; }

  bool is_attentive() const override { return verbose_; }
  void say(std::string_view words) override;
  void count(int remaining) override;
  void end_of_count() override;
  void end_of_computation() override;
  void mark() override;
  void advance(int remaining) override;

 private:
  bool verbose_ = true;
};

}  // namespace zep::front
