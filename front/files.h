// Opening files.
#pragma once

#include <ext/stdio_filebuf.h>
#include <fstream>
#include <ostream>
#include <string>

#include "front/input.h"

namespace zep {

// Asks for a file name and reads it, one word of any length. Throws end_of_input.
std::string ask_filename(input& in);

// Opens a file for reading; the stream is not open when that can't be done. A folder can't be
// opened, nor can a name with a NUL, which the system would take for its end.
std::ifstream open_for_reading(const std::string& name);

// What becomes of the contents of a result file that exists.
enum class existing_contents { drop, keep };

// A text file that results are written to.
class result_file {
 public:
  // Creates the file, readable for all and writable for owner and group unless the process's mask
  // forbids it, or empties the one that exists or goes on behind its end. Check is_open.
  explicit result_file(std::string name, existing_contents existing = existing_contents::drop);

  bool is_open() const { return buffer_.is_open(); }
  std::ostream& stream() { return stream_; }

  // Closes the file. Says on standard error when not everything was written.
  void close();

 private:
  std::string name_;
  // The standard library opens files with permissions of its own, but takes an open descriptor in
  // this buffer of its implementation.
  __gnu_cxx::stdio_filebuf<char> buffer_;
  std::ostream stream_;
};

}  // namespace zep
