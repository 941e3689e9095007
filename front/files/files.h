// SPDX-License-Identifier: GPL-3.0-or-later
// Opening files.
#pragma once

#include <cstdint>
#include <istream>
#include <ostream>
#include <string>

#include "front/files/descriptor_buffer.h"
#include "front/files/open_file.h"

namespace zep::front {

// A text file that is read.
class source_file {
 public:
  // Opens the file. A folder can't be opened, nor can a name with a NUL, which the system would
  // take for its end. A pipe is empty when nobody writes to it within a second. Check is_open.
  explicit source_file(const std::string& name);

  bool is_open() const { return buffer_.is_open(); }
  std::istream& stream() { return stream_; }

 private:
  descriptor_reader buffer_;
  std::istream stream_;
};

// Writes a file. What it held stays until writing begins, so that whoever gives up before that
// loses nothing.
class result_buffer : public descriptor_writer {
 public:
  result_buffer(int descriptor, existing_contents existing);

  // Begins to write: drops what the file held, unless it is kept or that has been done.
  void begin();

  // Takes back what has been written. The descriptor is closed, and nothing can be written any
  // more.
  void take_back();

 protected:
  int_type overflow(int_type c) override;

 private:
  // What stays of the file once writing has begun.
  std::int64_t kept_length_ = 0;
  bool begun_ = false;
};

// A text file that results are written to.
class result_file {
 public:
  // Opens the file, or creates it, readable for all and writable for owner and group unless the
  // process's mask forbids it. What is written takes the place of what the file held, or goes
  // behind it. A pipe can't be opened when nobody reads it within a second. Check is_open.
  explicit result_file(std::string name, existing_contents existing = existing_contents::drop);
  ~result_file();
  result_file(const result_file&) = delete;
  result_file& operator=(const result_file&) = delete;

  bool is_open() const { return buffer_.is_open(); }
  std::ostream& stream() { return stream_; }

  // Closes the file. Says on standard error when not everything was written.
  void close();

  // Takes back what has been written to the file that is open, if there is one, so that no half of
  // a result is left: for a process that ends there. A file that is not closed ends the same way.
  static void abandon();

 private:
  std::string name_;
  result_buffer buffer_;
  std::ostream stream_;
};

}  // namespace zep::front
