// SPDX-License-Identifier: GPL-3.0-or-later
// What a stream has handed on to whoever looks at its other end.
#pragma once

#include <sstream>
#include <string>

#include "base/floors.h"

namespace zep::tests {

// A buffer for an output stream that tells what was in it when it was flushed last.
class noted_flushes : public std::stringbuf {
 public:
  const std::string& flushed() const { return flushed_; }

 protected:
  int sync() override {
    flushed_ = str();
    return 0;
  }

 private:
  std::string flushed_;
};

}  // namespace zep::tests
