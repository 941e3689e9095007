// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/standard_input.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>

#include "base/paranoid.h"

namespace zep::front {

namespace {

// One byte crosses every boundary there is.
constexpr std::size_t buffer_size = paranoid ? 1 : std::size_t{1} << 16U;

ssize_t read_some(char* buffer, std::size_t size) {
  while (true) {
    const ssize_t count = ::read(STDIN_FILENO, buffer, size);
    if (count >= 0) return count;
    if (errno == EAGAIN || errno == EWOULDBLOCK) {
      // Whoever handed the descriptor over does not block on it; we do.
      pollfd waiting{STDIN_FILENO, POLLIN, 0};
      ::poll(&waiting, 1, -1);
    } else if (errno != EINTR) {
      return count;
    }
  }
}

}  // namespace

standard_input::standard_input() : buffer_(buffer_size) {}

standard_input::int_type standard_input::underflow() {
  if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
  std::cout.flush();
  const ssize_t count = ended_ ? 0 : read_some(buffer_.data(), buffer_.size());
  if (count <= 0) {
    ended_ = true;
    return traits_type::eof();
  }
  setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
  return traits_type::to_int_type(*gptr());
}

}  // namespace zep::front
