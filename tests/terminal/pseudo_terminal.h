// SPDX-License-Identifier: GPL-3.0-or-later
// A program at a terminal of its own.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "base/floors.h"

namespace zep::tests {

// Runs a program on a pseudo-terminal, types for it, and sees what it shows.
class pseudo_terminal {
 public:
  // Starts the program with these arguments at a terminal of so many columns. Line editing reads
  // its configuration from a file.
  explicit pseudo_terminal(const std::vector<std::string>& command, unsigned short columns = 80,
                           const char* configuration = "/dev/null");
  ~pseudo_terminal();
  pseudo_terminal(const pseudo_terminal&) = delete;
  pseudo_terminal& operator=(const pseudo_terminal&) = delete;

  // Presses these keys.
  void type(const std::string& keys) const;

  // Sends the program a signal.
  void send(int signal) const;

  // Waits until the program shows the text, behind what was waited for before. False if it ends
  // first, or within twenty seconds does not.
  bool shows(const std::string& text);

  // Waits for the end of the program; its exit status, or nothing if it was killed or goes on.
  std::optional<int> exit_status();

  // All that has been shown.
  const std::string& shown() const { return shown_; }

 private:
  bool read_more();

  pid_t program_ = -1;
  int terminal_ = -1;
  std::string shown_;
  std::size_t seen_ = 0;
};

}  // namespace zep::tests
