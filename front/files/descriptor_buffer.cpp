// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/files/descriptor_buffer.h"

#include <sys/ioctl.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zep::front {

namespace {

// Signals may end reading and writing before anything was done.
template <class Transfer>
ssize_t not_interrupted(Transfer transfer) {
  ssize_t count = transfer();
  while (count < 0 && errno == EINTR) count = transfer();
  return count;
}

// Goes on where the system, or a signal, stopped halfway.
bool write_all(int descriptor, const char* text, std::size_t size) {
  while (size > 0) {
    const ssize_t count = not_interrupted([&] { return ::write(descriptor, text, size); });
    if (count <= 0) return false;
    text += count;
    size -= static_cast<std::size_t>(count);
  }
  return true;
}

// Whatever is reported: after an interrupt the number is free as well.
bool close_descriptor(int descriptor) { return ::close(descriptor) == 0 || errno == EINTR; }

}  // namespace

descriptor_reader::~descriptor_reader() {
  if (is_open()) static_cast<void>(close_descriptor(descriptor_));
}

descriptor_reader::int_type descriptor_reader::underflow() {
  if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
  const ssize_t count =
      not_interrupted([&] { return ::read(descriptor_, buffer_.data(), buffer_.size()); });
  if (count <= 0) return traits_type::eof();
  setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
  return traits_type::to_int_type(*gptr());
}

std::streamsize descriptor_reader::showmanyc() {
  int count = 0;
  return ::ioctl(descriptor_, FIONREAD, &count) == 0 ? count : 0;
}

descriptor_writer::~descriptor_writer() {
  if (is_open()) static_cast<void>(close());
}

bool descriptor_writer::write_out() {
  if (!is_open()) return false;
  const bool written = write_all(descriptor_, pbase(), static_cast<std::size_t>(pptr() - pbase()));
  setp(buffer_.data(), buffer_.data() + buffer_.size());
  return written;
}

bool descriptor_writer::close() {
  const bool written = write_out();
  return close_unwritten() && written;
}

bool descriptor_writer::close_unwritten() {
  setp(nullptr, nullptr);
  return is_open() && close_descriptor(std::exchange(descriptor_, -1));
}

descriptor_writer::int_type descriptor_writer::overflow(int_type c) {
  if (!write_out()) return traits_type::eof();
  if (!traits_type::eq_int_type(c, traits_type::eof())) {
    *pptr() = traits_type::to_char_type(c);
    pbump(1);
  }
  return traits_type::not_eof(c);
}

int descriptor_writer::sync() { return write_out() ? 0 : -1; }

}  // namespace zep::front
