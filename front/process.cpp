#include "front/process.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <initializer_list>

namespace zep {

namespace {

void open_closed_descriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const bool closed = ::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF;
    // The lowest free number is taken, and that is this one.
    if (closed) static_cast<void>(::open("/dev/null", O_RDWR));
  }
}

}  // namespace

void prepare_process() {
  open_closed_descriptors();
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

}  // namespace zep
