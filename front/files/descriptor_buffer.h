// SPDX-License-Identifier: GPL-3.0-or-later
// Descriptors of files as stream buffers: the standard library only opens files by name.
#pragma once

#include <array>
#include <cstddef>
#include <streambuf>

#include "base/paranoid.h"

namespace zep::front {

// One byte crosses every boundary there is.
constexpr std::size_t descriptor_buffer_size = base::paranoid ? 1 : 8192;

// Reads a descriptor, which it closes at its end. What can't be read counts as ended.
class descriptor_reader : public std::streambuf {
 public:
  // No descriptor, -1, is an empty file. Check is_open.
  explicit descriptor_reader(int descriptor) : descriptor_(descriptor) {}
  ~descriptor_reader() override;
  descriptor_reader(const descriptor_reader&) = delete;
  descriptor_reader& operator=(const descriptor_reader&) = delete;

  bool is_open() const { return descriptor_ >= 0; }

 protected:
  int_type underflow() override;
  // How much there is to be read without waiting.
  std::streamsize showmanyc() override;

 private:
  int descriptor_;
  std::array<char, descriptor_buffer_size> buffer_{};
};

// Writes a descriptor, which it closes. What can't be written is dropped, and reported as the
// standard library's buffers do it.
class descriptor_writer : public std::streambuf {
 public:
  // Nothing can be written without a descriptor, -1. Check is_open.
  explicit descriptor_writer(int descriptor) : descriptor_(descriptor) {}
  ~descriptor_writer() override;
  descriptor_writer(const descriptor_writer&) = delete;
  descriptor_writer& operator=(const descriptor_writer&) = delete;

  bool is_open() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }

  // Writes what is still held, and closes. False when that fails. Nothing can be written any more.
  bool close();

  // The same, but drops what is still held.
  bool close_unwritten();

 protected:
  int_type overflow(int_type c) override;
  int sync() override;

 private:
  bool write_out();

  int descriptor_;
  std::array<char, descriptor_buffer_size> buffer_{};
};

}  // namespace zep::front
