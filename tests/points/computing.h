// What a computation writes.
#pragma once

#include <sstream>
#include <string>

#include "tests/points/point_sets.h"

namespace zep::tests {

// On a stream that it was given, on standard output, on standard error.
struct written {
  std::string given;
  std::string out;
  std::string err;
};

// Runs compute(stream).
template <class Compute>
written by(Compute compute) {
  const silence quiet;
  std::ostringstream given;
  compute(given);
  return {given.str(), quiet.out.text(), quiet.err.text()};
}

// Runs compute(standard output). What comes of it on a screen that shows both standard streams.
template <class Compute>
std::string on_screen(Compute compute) {
  const captured screen(std::cout);
  const captured err(std::cerr);
  std::cerr.rdbuf(std::cout.rdbuf());
  compute(std::cout);
  return screen.text();
}

}  // namespace zep::tests
