// What a computation writes.
#pragma once

#include <sstream>
#include <string>

#include "tests/scheme/point_sets.h"

namespace zep {

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

}  // namespace zep
