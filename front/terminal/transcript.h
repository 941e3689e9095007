// SPDX-License-Identifier: GPL-3.0-or-later
// Repeating what is read where it is read.
#pragma once

#include <ostream>
#include <streambuf>
#include <string>

#include "base/floors.h"

namespace zep::front {

// Hands on what another buffer reads, line by line, and writes each line to a stream when it is
// first looked at: behind its prompt, and before it is carried out. Both must outlive this. A last
// line without end gets one there.
class repeated_input : public std::streambuf {
 public:
  repeated_input(std::streambuf& source, std::ostream& to) : source_(source), to_(to) {}

 protected:
  int_type underflow() override;
  int sync() override { return source_.pubsync(); }

 private:
  std::streambuf& source_;
  std::ostream& to_;
  std::string line_;
};

// Writes what a stream writes to a second one as well, while it lives. Both must outlive this.
class doubled_output : public std::streambuf {
 public:
  doubled_output(std::ostream& stream, std::ostream& second);
  ~doubled_output() override;
  doubled_output(const doubled_output&) = delete;
  doubled_output& operator=(const doubled_output&) = delete;

 protected:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* text, std::streamsize count) override;
  int sync() override;

 private:
  std::ostream& stream_;
  std::streambuf& first_;
  std::ostream& second_;
};

}  // namespace zep::front
