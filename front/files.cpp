#include "front/files.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

namespace zep {

namespace {

constexpr mode_t result_permissions = 0664;

bool has_nul(const std::string& name) { return name.find('\0') != std::string::npos; }

// How long the other end of a pipe is waited for, in milliseconds.
constexpr int patience = 1000;

int open_without_waiting(const std::string& name, int flags) {
  if (has_nul(name)) return -1;
  return ::open(name.c_str(), flags | O_NONBLOCK | O_CLOEXEC, result_permissions);
}

// Reading and writing wait as usual.
int waiting_again(int descriptor) {
  if (descriptor >= 0) {
    const int mode = ::fcntl(descriptor, F_GETFL);
    static_cast<void>(::fcntl(descriptor, F_SETFL, mode & ~O_NONBLOCK));
  }
  return descriptor;
}

int open_source(const std::string& name) {
  std::error_code ignored;
  if (!has_nul(name) && std::filesystem::is_directory(name, ignored)) return -1;
  const int descriptor = open_without_waiting(name, O_RDONLY);
  // What is no pipe answers at once.
  pollfd contents{descriptor, POLLIN, 0};
  if (descriptor >= 0) static_cast<void>(::poll(&contents, 1, patience));
  return waiting_again(descriptor);
}

int open_result(const std::string& name, existing_contents existing) {
  const int flags = O_WRONLY | O_CREAT | (existing == existing_contents::drop ? O_TRUNC : O_APPEND);
  int descriptor = open_without_waiting(name, flags);
  constexpr int step = 10;
  for (int waited = 0; descriptor < 0 && errno == ENXIO && waited < patience; waited += step) {
    static_cast<void>(::poll(nullptr, 0, step));
    descriptor = open_without_waiting(name, flags);
  }
  return waiting_again(descriptor);
}

// The result file that is open; there is never more than one.
result_file* open_file = nullptr;

}  // namespace

std::string ask_filename(input& in) {
  std::cout << "enter filename : ";
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

result_file::~result_file() { open_file = nullptr; }

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
