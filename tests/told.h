// SPDX-License-Identifier: GPL-3.0-or-later
// What computations tell, as strings.
#pragma once

#include <string>
#include <string_view>

#include "base/output.h"
#include "base/reporter.h"

namespace zep::tests {

// Collects what is told in the form in which the verbose terminal prints it: what goes to standard
// output there, and what goes to standard error.
class told : public reporter {
 public:
  explicit told(bool attentive = true) : attentive_(attentive) {}

  bool is_attentive() const override { return attentive_; }
  void say(std::string_view words) override { err += words; }
  void count(int remaining) override { err += "[" + std::to_string(remaining) + "]"; }
  void end_of_count() override { err += "\n"; }
  void end_of_computation() override { out += Line; }
  void mark() override { out += "."; }
  void advance(int remaining) override { out += "[" + std::to_string(remaining) + "]"; }

  void forget() {
    out.clear();
    err.clear();
  }

  std::string out;
  std::string err;

 private:
  bool attentive_;
};

// Listens to nothing.
class silent : public reporter {
 public:
  bool is_attentive() const override { return false; }
  void say(std::string_view /*words*/) override {}
  void count(int /*remaining*/) override {}
  void end_of_count() override {}
  void end_of_computation() override {}
  void mark() override {}
  void advance(int /*remaining*/) override {}
};

// One for whoever does not care.
inline reporter& nobody() {
  static silent listener;
  return listener;
}

}  // namespace zep::tests
