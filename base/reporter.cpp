#include "base/reporter.h"

#include <iostream>
#include <string>

#include "base/interrupt.h"

namespace zep::base {

int verbose = 1;

void report(std::string_view text) {
  if (verbose != 0) std::cerr << text;
}

progress::progress(std::string_view heading) { report(heading); }

void progress::count(int remaining) const {
  if (verbose == 0) return;
  // One write for the whole item: standard error is not buffered.
  std::string item(1, '[');
  item += std::to_string(remaining);
  item += ']';
  std::cerr << item;
}

void progress::count_down(int n) const {
  for (int remaining = n; remaining > 0; --remaining) {
    heed_interrupt();
    count(remaining);
  }
}

void progress::end_line() const { report("\n"); }

}  // namespace zep::base
