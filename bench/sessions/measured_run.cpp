// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/sessions/measured_run.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "bench/sessions/session_case.h"

namespace zep::tests {

namespace {

constexpr const char* output_file = "out";
constexpr int cannot_start = 127;

volatile std::sig_atomic_t interrupted = 0;

void note_interrupt(int /*signal*/) { interrupted = 1; }

bool redirect(int descriptor, const char* file, int flags) {
  const int opened = ::open(file, flags | O_CLOEXEC, 0600);
  return opened >= 0 && ::dup2(opened, descriptor) >= 0;
}

[[noreturn]] void become(const char* program, const char* folder) {
  if (::chdir(folder) == 0 && redirect(STDIN_FILENO, session_file, O_RDONLY) &&
      redirect(STDOUT_FILENO, output_file, O_WRONLY | O_CREAT | O_TRUNC) &&
      redirect(STDERR_FILENO, "/dev/null", O_WRONLY)) {
    ::execl(program, program, static_cast<char*>(nullptr));
  }
  ::_exit(cannot_start);
}

struct ending {
  int status = 0;
  rusage usage{};
};

ending wait_for(pid_t child) {
  ending end;
  while (::wait4(child, &end.status, 0, &end.usage) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "wait4");
    if (interrupted != 0) static_cast<void>(::kill(child, SIGKILL));
  }
  if (interrupted != 0) throw interruption();
  return end;
}

void check_status(int status) {
  if (WIFSIGNALED(status)) throw failed_run("signal " + std::to_string(WTERMSIG(status)));
  if (WEXITSTATUS(status) != 0) {
    throw failed_run("exit status " + std::to_string(WEXITSTATUS(status)));
  }
}

// Words of the messages about what was typed or read; no result has them.
bool is_error(std::string_view line) {
  constexpr std::array<std::string_view, 7> words = {
      "can't", "malformed", "unexpected", "unknown", "indentifier", "has to be", "enough"};
  return std::any_of(words.begin(), words.end(), [&](std::string_view word) {
    return line.find(word) != std::string_view::npos;
  });
}

// Line by line: a process inherits the memory of the one that starts it, so this one stays small.
void check_output(const std::filesystem::path& file) {
  std::ifstream out(file);
  bool farewell = false;
  for (std::string line; std::getline(out, line);) {
    if (is_error(line)) throw failed_run(line);
    farewell = farewell || line.starts_with("thanks for using");
  }
  if (!farewell) throw failed_run("no farewell");
}

double milliseconds_since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

}  // namespace

void end_runs_at_interrupt() {
  // Without SA_RESTART, so that waiting ends as well.
  struct sigaction action {};
  action.sa_handler = note_interrupt;
  for (const int signal : {SIGINT, SIGTERM}) {
    static_cast<void>(::sigaction(signal, &action, nullptr));
  }
}

measurement measured_run(const std::filesystem::path& program,
                         const std::filesystem::path& folder) {
  const auto start = std::chrono::steady_clock::now();
  // Not posix_spawn: its child shares the memory of this process, and the most that this process
  // ever had would be counted as the child's.
  const pid_t child = ::fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child == 0) become(program.c_str(), folder.c_str());
  const ending end = wait_for(child);
  const double milliseconds = milliseconds_since(start);
  check_status(end.status);
  check_output(folder / output_file);
  return {milliseconds, static_cast<double>(end.usage.ru_maxrss) / 1024};
}

}  // namespace zep::tests
