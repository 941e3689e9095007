// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/terminal_reporter.h"

#include <iostream>
#include <string>

#include "base/output.h"

namespace zep::front {

void terminal_reporter::say(std::string_view words) {
  if (verbose_) std::cerr << words;
}

void terminal_reporter::count(int remaining) {
  if (!verbose_) return;
  // One write for the whole item: standard error is not buffered.
  std::string item(1, '[');
  item += std::to_string(remaining);
  item += ']';
  std::cerr << item;
}

void terminal_reporter::end_of_count() { say("\n"); }

void terminal_reporter::end_of_computation() { std::cout << Line; }

void terminal_reporter::mark() { std::cout << "." << std::flush; }

void terminal_reporter::advance(int remaining) {
  if (verbose_) std::cout << "[" << remaining << "]" << std::flush;
}

}  // namespace zep::front
