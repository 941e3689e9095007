// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/files/files.h"

#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <utility>

namespace zep::front {

namespace {

// The result file that is open; there is never more than one.
result_file* open_file = nullptr;

}  // namespace

source_file::source_file(const std::string& name) : buffer_(open_source(name)), stream_(&buffer_) {}

result_buffer::result_buffer(int descriptor, existing_contents existing)
    : descriptor_writer(descriptor) {
  if (existing == existing_contents::keep) {
    kept_length_ = std::max<off_t>(::lseek(descriptor, 0, SEEK_END), 0);
  }
}

void result_buffer::begin() {
  if (begun_) return;
  begun_ = true;
  // A pipe has no length.
  static_cast<void>(::ftruncate(descriptor(), kept_length_));
}

void result_buffer::take_back() {
  if (begun_) static_cast<void>(::ftruncate(descriptor(), kept_length_));
  static_cast<void>(close_unwritten());
}

result_buffer::int_type result_buffer::overflow(int_type c) {
  begin();
  return descriptor_writer::overflow(c);
}

result_file::result_file(std::string name, existing_contents existing)
    : name_(std::move(name)), buffer_(open_result(name_, existing), existing), stream_(&buffer_) {
  if (is_open()) open_file = this;
}

result_file::~result_file() {
  if (open_file == this) abandon();
  open_file = nullptr;
}

void result_file::close() {
  buffer_.begin();
  const bool flushed = stream_.flush().good();
  const bool closed = buffer_.close();
  open_file = nullptr;
  if (!flushed || !closed) std::cerr << "warning: can't write all of " << name_ << "\n";
}

void result_file::abandon() {
  if (open_file == nullptr) return;
  open_file->buffer_.take_back();
  open_file = nullptr;
}

}  // namespace zep::front
