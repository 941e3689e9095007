// SPDX-License-Identifier: GPL-3.0-or-later
// What the stream inserters write.
#pragma once

#include <sstream>
#include <string>

#include "base/floors.h"

namespace zep::tests {

template <class T>
std::string text_of(const T& x) {
  std::ostringstream out;
  out << x;
  return out.str();
}

}  // namespace zep::tests
