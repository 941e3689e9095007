// SPDX-License-Identifier: GPL-3.0-or-later
// Polynomials in file form.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "points/ring/ideal.h"

namespace zep::tests {

inline std::string printed(const polynomial& f) {
  std::ostringstream out;
  f.put(out);
  return out.str();
}

inline std::vector<std::string> printed(const ideal& I) {
  std::vector<std::string> texts;
  for (const polynomial& f : I.gen) texts.push_back(printed(f));
  return texts;
}

}  // namespace zep::tests
