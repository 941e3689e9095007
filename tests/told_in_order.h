// SPDX-License-Identifier: GPL-3.0-or-later
// What computations tell, between what they have written.
#pragma once

#include <ostream>
#include <string_view>

#include "base/output.h"
#include "base/reporter.h"

namespace zep::tests {

// Writes everything that is told to one stream, as a screen shows both standard streams.
class told_in_order : public reporter {
 public:
  explicit told_in_order(std::ostream& screen) : screen_(screen) {}

  bool is_attentive() const override { return true; }
  void say(std::string_view words) override { screen_ << words; }
  void count(int remaining) override { screen_ << "[" << remaining << "]"; }
  void end_of_count() override { screen_ << "\n"; }
  void end_of_computation() override { screen_ << Line; }
  void mark() override { screen_ << "."; }
  void advance(int remaining) override { screen_ << "[" << remaining << "]"; }

 private:
  std::ostream& screen_;
};

}  // namespace zep::tests
