// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/process/process.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <iostream>

namespace zep::front {

namespace {

void open_closed_descriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const bool closed = ::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF;
    // The lowest free number is taken, and that is this one.
    if (closed) static_cast<void>(::open("/dev/null", O_RDWR));
  }
}

// More than the deepest call needs.
constexpr std::size_t stack_needed = std::size_t{1} << 18U;

[[gnu::noinline]] void touch_stack() {
  std::array<volatile char, stack_needed> space{};
  constexpr std::size_t smallest_page = 4096;
  for (std::size_t i = 0; i < space.size(); i += smallest_page) space[i] = 0;
}

bool reader_has_gone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return ::poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

}  // namespace

void prepare_process() {
  open_closed_descriptors();
  for (const int signal : {SIGXFSZ, SIGPIPE}) static_cast<void>(std::signal(signal, SIG_IGN));
  touch_stack();
}

void end_with(const division_by_zero& fault) {
  std::cout << "\n" << fault.field << ": division by zero\n" << std::flush;
  std::exit(1);
}

int finish_output() {
  if (std::cout.flush() || reader_has_gone()) return 0;
  std::cerr << "can't write to standard output\n";
  return 1;
}

}  // namespace zep::front
