// SPDX-License-Identifier: GPL-3.0-or-later
// What every fuzz target runs the program in: no terminal, no file system, no end of the process,
// and nothing left over from the run before.
#pragma once

#include <iostream>
#include <new>
#include <stdexcept>
#include <streambuf>
#include <string>

#include "arith/division_by_zero.h"

namespace zep::tests {

// Files are kept in memory while the sandbox is linked: names without a slash name one of at most
// 16 of them, "full" takes no data, and nothing else can be opened.
void put_file(const std::string& name, const std::string& contents);

// Forgets all files, and what a run may have left in the standard streams. The ring comes and goes
// with the workspace of a run.
void start_afresh();

// Drops what is written to one of the standard streams while it lives.
class discarded {
 public:
  explicit discarded(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(&nowhere_)) {}
  ~discarded() { stream_.rdbuf(before_); }
  discarded(const discarded&) = delete;
  discarded& operator=(const discarded&) = delete;

 private:
  class nowhere : public std::streambuf {
   protected:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char* /*text*/, std::streamsize n) override { return n; }
  };

  nowhere nowhere_;
  std::ostream& stream_;
  std::streambuf* before_;
};

// Runs `action` without output. Where the program would end in an orderly way before its input
// does, so does the action: at a division by zero and when memory is exhausted.
template <class Action>
void in_sandbox(Action action) {
  const discarded out(std::cout);
  const discarded err(std::cerr);
  try {
    action();
  } catch (const division_by_zero&) {
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {
  }
}

}  // namespace zep::tests
