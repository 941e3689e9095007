#include "front/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <initializer_list>

namespace zep {

void open_closed_descriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const bool closed = ::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF;
    // The lowest free number is taken, and that is this one.
    if (closed) static_cast<void>(::open("/dev/null", O_RDWR));
  }
}

}  // namespace zep
