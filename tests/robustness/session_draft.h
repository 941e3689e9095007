// SPDX-License-Identifier: GPL-3.0-or-later
// A random session in the making.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/robustness/dice.h"
#include "tests/robustness/typed_points.h"

namespace zep::tests {

// How far the space grows in a session.
enum class extent { low, middle, wide };

bool makes_strands(std::string_view command_name);

// Its text, and what the session has come to, as far as its own words tell.
struct session_draft {
  explicit session_draft(unsigned seed) : d(seed) {}

  // Puts a word behind the others.
  void say(std::string_view word);
  void end_line();

  // A name for a point set, mostly one that is free. It is known from then on.
  std::string_view new_name();
  // A set that the command can be done with soon; empty if there is none.
  std::string_view known_name(std::string_view command_name);
  void forget_sets() { live.clear(); }

  int count_for(std::string_view set_name);
  // The count, or, seldom, one that can't be had.
  std::string some_count(std::string_view set_name);
  std::string_view filename_to_read(std::string_view set_name);
  // Results of large sets go into files of their own, so that no small set is read from one.
  std::string_view filename_to_write(std::string_view set_name);
  int new_dimension();
  typed_space space() const { return {dim, p, line_end}; }

  dice d;
  extent reach = extent::low;
  bool mutated = false;
  const char* line_end = "\n";
  std::string text;

  std::vector<std::string_view> live;
  int dim = 3;
  int p = 101;
  int names = 27;
};

}  // namespace zep::tests
