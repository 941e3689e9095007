// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/files/open_file.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/types.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace zep::front {

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

}  // namespace

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
  const int flags = O_WRONLY | O_CREAT | (existing == existing_contents::keep ? O_APPEND : 0);
  int descriptor = open_without_waiting(name, flags);
  constexpr int step = 10;
  for (int waited = 0; descriptor < 0 && errno == ENXIO && waited < patience; waited += step) {
    static_cast<void>(::poll(nullptr, 0, step));
    descriptor = open_without_waiting(name, flags);
  }
  return waiting_again(descriptor);
}

}  // namespace zep::front
