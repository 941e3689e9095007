// What the stream inserters write.
#pragma once

#include <sstream>
#include <string>

namespace zep {

template <class T>
std::string text_of(const T& x) {
  std::ostringstream out;
  out << x;
  return out.str();
}

}  // namespace zep
