// SPDX-License-Identifier: GPL-3.0-or-later
// What a computation writes and tells.
#pragma once

#include <sstream>
#include <string>

#include "tests/points/point_sets.h"

namespace zep::tests {

// On a stream that it was given, and as its reporter has it: on standard output, on standard error.
struct written {
  std::string given;
  std::string out;
  std::string err;
};

// Runs compute(stream, reporter).
template <class Compute>
written by(Compute compute) {
  told reporter;
  std::ostringstream given;
  compute(given, reporter);
  return {given.str(), reporter.out, reporter.err};
}

// A set that remembers, with what it tells.
struct told_set {
  explicit told_set(const std::vector<coordinates>& points) : X(make_set(points, reporter)) {}
  ~told_set() = default;
  told_set(const told_set&) = delete;
  told_set& operator=(const told_set&) = delete;

  told reporter;
  scheme X;
};

}  // namespace zep::tests
