// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/forked_run.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "base/output.h"
#include "front/process/memory.h"
#include "front/process/process.h"
#include "front/program.h"
#include "tests/robustness/working_folder.h"

namespace zep::tests {

namespace {

#ifdef ZEP_SANITIZE
constexpr unsigned time_limit = 60;
#else
constexpr unsigned time_limit = 20;
#endif

// No session writes as much; one that never ends would fill the disk.
constexpr rlim_t largest_file = 256U << 20U;

void check(bool succeeded, const char* what) {
  if (!succeeded) throw std::system_error(errno, std::generic_category(), what);
}

void redirect(int descriptor, const std::filesystem::path& file) {
  const int opened = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  check(opened >= 0 && ::dup2(opened, descriptor) >= 0 && ::close(opened) == 0, "redirect");
}

void limit_file_size() {
  const rlimit limit = {largest_file, largest_file};
  check(::setrlimit(RLIMIT_FSIZE, &limit) == 0, "setrlimit");
}

[[noreturn]] void be_the_child(const std::filesystem::path& scratch,
                               const std::function<void()>& work) {
  ::alarm(time_limit);
  limit_file_size();
  redirect(STDOUT_FILENO, scratch / "out");
  redirect(STDERR_FILENO, scratch / "err");
  std::filesystem::current_path(scratch / "work");
  work();
  // Not _exit: what looks for leaks does so on the way out.
  std::exit(0);
}

int wait_for(pid_t child) {
  int status = 0;
  while (::waitpid(child, &status, 0) < 0) check(errno == EINTR, "waitpid");
  return status;
}

std::string contents(const std::filesystem::path& file) {
  const std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void be_the_program(const std::string& typed) {
  prepare_process();
  install_mem_warn();
  try {
    std::istringstream in(typed);
    run_program(in);
  } catch (const division_by_zero& fault) {
    end_with(fault);
  } catch (const std::bad_alloc&) {
    mem_warn();
  } catch (const std::length_error&) {
    mem_warn();
  }
}

// Of numbers as they are typed, that is: a computation must never divide by zero.
bool ends_with_division_by_zero(const std::string& out) {
  return std::string_view(out).ends_with("\nFp: division by zero\n");
}

bool has_sanitizer_report(const std::string& err) {
  return err.find("Sanitizer") != std::string::npos ||
         err.find("runtime error:") != std::string::npos;
}

std::string signal_fault(int signal) {
  if (signal == SIGALRM) return "hangs";
  return "ended by signal " + std::to_string(signal);
}

}  // namespace

outcome run_forked(const std::filesystem::path& scratch, const std::function<void()>& work) {
  fill_working_folder(scratch / "work");
  // Otherwise the child would write what waits here as well.
  std::cout.flush();
  static_cast<void>(std::fflush(nullptr));
  const pid_t child = ::fork();
  check(child >= 0, "fork");
  if (child == 0) be_the_child(scratch, work);
  const int status = wait_for(child);
  return {status, contents(scratch / "out"), contents(scratch / "err")};
}

outcome run_session(const std::filesystem::path& scratch, const std::string& session) {
  return run_forked(scratch, [&] { be_the_program(session); });
}

std::string fault_of(const outcome& run) {
  if (WIFSIGNALED(run.status)) return signal_fault(WTERMSIG(run.status));
  if (has_sanitizer_report(run.err)) return "sanitizer report";
  switch (WEXITSTATUS(run.status)) {
    case 0:
      return ends_with_farewell(run.out) ? "" : "no farewell";
    case 1:
      return ends_with_division_by_zero(run.out) ? "" : "status 1 without a division by zero";
    default:
      return "status " + std::to_string(WEXITSTATUS(run.status));
  }
}

bool ends_with_farewell(const std::string& out) {
  return std::string_view(out).ends_with(std::string(Line) + "thanks for using ZEP\n" +
                                         std::string(Line));
}

}  // namespace zep::tests
