#include "scheme/progress.h"

#include <iostream>
#include <string>

namespace zep {

int verbose = 1;

progress::progress(std::string_view heading) {
  if (verbose != 0) std::cerr << heading;
}

void progress::count(int remaining) const {
  if (verbose == 0) return;
  // One write for the whole item: standard error is not buffered.
  std::string item(1, '[');
  item += std::to_string(remaining);
  item += ']';
  std::cerr << item;
}

void progress::end_line() const {
  if (verbose != 0) std::cerr << "\n";
}

}  // namespace zep
