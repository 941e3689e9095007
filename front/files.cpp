#include "front/files.h"

#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <utility>

#include "front/prompt.h"

namespace zep {

namespace {

// The result file that is open; there is never more than one.
result_file* open_file = nullptr;

}  // namespace

std::string ask_filename(input& in) {
  prompt(filename_prompt);
  return in.word();
}

source_file::source_file(const std::string& name)
    : buffer_(open_source(name), std::ios::in), stream_(&buffer_) {}

result_file::result_file(std::string name, existing_contents existing)
    : name_(std::move(name)),
      buffer_(open_result(name_, existing), std::ios::out),
      stream_(&buffer_) {
  if (!is_open()) return;
  length_before_ = std::max<off_t>(::lseek(buffer_.fd(), 0, SEEK_END), 0);
  open_file = this;
}

result_file::~result_file() {
  if (open_file == this) abandon();
  open_file = nullptr;
}

void result_file::close() {
  const bool flushed = stream_.flush().good();
  const bool closed = buffer_.close() != nullptr;
  open_file = nullptr;
  if (!flushed || !closed) std::cerr << "warning: can't write all of " << name_ << "\n";
}

void result_file::abandon() {
  if (open_file == nullptr) return;
  const int descriptor = open_file->buffer_.fd();
  // The buffer still holds a part, which would be written at its end.
  static_cast<void>(::ftruncate(descriptor, open_file->length_before_));
  static_cast<void>(::close(descriptor));
}

}  // namespace zep
