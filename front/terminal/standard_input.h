// SPDX-License-Identifier: GPL-3.0-or-later
// Standard input as a stream buffer.
#pragma once

#include <streambuf>
#include <vector>

#include "base/floors.h"

namespace zep::front {

// Reads file descriptor 0. Before it waits for input it flushes standard output, so that whoever
// sits at the other end has seen the prompt; nothing else has to flush. Once the input has ended it
// stays ended, also at a terminal. An unreadable input counts as ended.
class standard_input : public std::streambuf {
 public:
  standard_input();

 protected:
  int_type underflow() override;

 private:
  std::vector<char> buffer_;
  bool ended_ = false;
};

}  // namespace zep::front
