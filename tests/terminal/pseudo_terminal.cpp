// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/terminal/pseudo_terminal.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#if __has_include(<pty.h>)
#include <pty.h>
#else
#include <util.h>
#endif

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <thread>

namespace zep::tests {

namespace {

constexpr int patience_in_milliseconds = 20000;

[[noreturn]] void become(const std::vector<std::string>& command, const char* configuration) {
  std::vector<char*> words;
  words.reserve(command.size() + 1);
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  // No terminal description of the machine's, and no key bindings of the user's.
  ::setenv("TERM", "xterm", 1);
  ::setenv("INPUTRC", configuration, 1);
  ::execv(words.front(), words.data());
  ::_exit(127);
}

}  // namespace

pseudo_terminal::pseudo_terminal(const std::vector<std::string>& command, unsigned short columns,
                                 const char* configuration) {
  const winsize size{24, columns, 0, 0};
  program_ = ::forkpty(&terminal_, nullptr, nullptr, &size);
  if (program_ < 0) throw std::system_error(errno, std::generic_category(), "forkpty");
  if (program_ == 0) become(command, configuration);
}

pseudo_terminal::~pseudo_terminal() {
  if (program_ > 0) {
    ::kill(program_, SIGKILL);
    ::waitpid(program_, nullptr, 0);
  }
  ::close(terminal_);
}

void pseudo_terminal::type(const std::string& keys) const {
  std::size_t typed = 0;
  while (typed < keys.size()) {
    const ssize_t count = ::write(terminal_, keys.data() + typed, keys.size() - typed);
    if (count < 0) throw std::system_error(errno, std::generic_category(), "write");
    typed += static_cast<std::size_t>(count);
  }
}

void pseudo_terminal::send(int signal) const { ::kill(program_, signal); }

// False when there is nothing more to come.
bool pseudo_terminal::read_more() {
  pollfd waiting{terminal_, POLLIN, 0};
  if (::poll(&waiting, 1, patience_in_milliseconds) != 1) return false;
  std::array<char, 4096> buffer{};
  // A terminal that nobody uses any more is an error.
  const ssize_t count = ::read(terminal_, buffer.data(), buffer.size());
  if (count <= 0) return false;
  shown_.append(buffer.data(), static_cast<std::size_t>(count));
  return true;
}

bool pseudo_terminal::shows(const std::string& text) {
  while (true) {
    const std::size_t found = shown_.find(text, seen_);
    if (found != std::string::npos) {
      seen_ = found + text.size();
      return true;
    }
    if (!read_more()) return false;
  }
}

std::optional<int> pseudo_terminal::exit_status() {
  while (read_more()) {
  }
  int status = 0;
  for (int waited = 0; waited < patience_in_milliseconds; waited += 10) {
    if (::waitpid(program_, &status, WNOHANG) == program_) {
      program_ = -1;
      if (WIFEXITED(status)) return WEXITSTATUS(status);
      return std::nullopt;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return std::nullopt;
}

}  // namespace zep::tests
