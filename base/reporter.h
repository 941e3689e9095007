// SPDX-License-Identifier: GPL-3.0-or-later
// What computations tell on their way.
//
// Computations print nothing. They are handed a reporter and tell it what goes on; where that
// appears, if anywhere, is its business: the terminal writes it between the prompts, another
// program may move a progress bar, a test collects it.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::base {

class reporter {
 public:
  reporter() = default;
  reporter(const reporter&) = delete;
  reporter& operator=(const reporter&) = delete;
  virtual ~reporter() = default;

  // False when words and countdowns go nowhere, so that it is not worth while to find out what
  // there is to tell.
  virtual bool is_attentive() const = 0;

  // Words with their own line end: a heading, or a number that was found.
  virtual void say(std::string_view words) = 0;

  // So many items of what the last heading announced are left, this one included.
  virtual void count(int remaining) = 0;

  // The countdown is over.
  virtual void end_of_count() = 0;

  // A computation whose end is shown is over.
  virtual void end_of_computation() = 0;

  // What was tried has come to nothing: a pair that has no syzygy.
  virtual void mark() = 0;

  // A walk over subsets has come so far that its last element can be moved so often yet.
  virtual void advance(int remaining) = 0;
};

// The progress of one computation: a heading, a countdown of numbers, its end.
class progress {
 public:
  // Tells the heading, which brings its own line end. The reporter must outlive this.
  progress(reporter& to, std::string_view heading) : to_(to) { to_.say(heading); }

  void count(int remaining) const { to_.count(remaining); }

  // Counts from n to 1 for what is done at once.
  void count_down(int n) const;

  void end_line() const { to_.end_of_count(); }

 private:
  reporter& to_;
};

}  // namespace zep::base
