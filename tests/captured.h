// SPDX-License-Identifier: GPL-3.0-or-later
// Standard output and standard error as strings.
#pragma once

#include <iostream>
#include <sstream>
#include <string>

#include "base/floors.h"

namespace zep::tests {

// Keeps what is written to one of the standard streams while it lives.
class captured {
 public:
  explicit captured(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(text_.rdbuf())) {}
  ~captured() { stream_.rdbuf(before_); }
  captured(const captured&) = delete;
  captured& operator=(const captured&) = delete;

  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::ostream& stream_;
  std::streambuf* before_;
};

}  // namespace zep::tests
