// SPDX-License-Identifier: GPL-3.0-or-later
// The program at a terminal, and keys to press there.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "tests/terminal/pseudo_terminal.h"

namespace zep::tests {

inline const std::string backspace = "\x7f";
inline const std::string ctrl_c = "\x03";
inline const std::string ctrl_d = "\x04";
inline const std::string delete_to_the_end = "\x0b";
inline const std::string start_of_line = "\x01";
inline const std::string search_backwards = "\x12";
inline const std::string up = "\x1b[A";

// Line editing tells the terminal, before it awaits keys, to mark what is pasted.
inline const std::string awaits_keys = "\x1b[?2004h";

// How the cursor is moved there when another line is shown.
inline std::string to_column(int column) {
  std::string keys = "\r";
  for (int i = 0; i < column; ++i) keys += "\x1b[C";
  return keys;
}

inline std::string pasted(const std::string& text) { return "\x1b[200~" + text + "\x1b[201~"; }

// A path that no test running beside this one has.
inline std::string own_path(const std::string& name) {
  return testing::TempDir() + name + "-" + std::to_string(::getpid());
}

// Every test of these is run with the program and with the one that has no line editing.
class Terminal : public testing::TestWithParam<const char*> {
 protected:
  pseudo_terminal zep_{{GetParam()}};

  // The next prompt is on the screen, and the program awaits keys.
  void await_prompt() { await_question("% "); }
  void await_question(const std::string& text) {
    ASSERT_TRUE(zep_.shows(text)) << zep_.shown();
    if (edits_lines()) {
      ASSERT_TRUE(zep_.shows(awaits_keys)) << zep_.shown();
    }
  }
  bool edits_lines() const { return GetParam() == std::string(ZEP_PROGRAM); }
  void type_line(const std::string& line) { zep_.type(line + "\n"); }
  void expect(const std::string& text) {
    ASSERT_TRUE(zep_.shows(text)) << text << " in: " << zep_.shown();
  }
};

// So many points take long enough, and not too long with the checks of the sanitizers; and the
// least degree of a form through them.
#ifdef ZEP_SANITIZE
constexpr int many_points = 400;
constexpr int alpha_of_many = 12;
#else
constexpr int many_points = 2000;
constexpr int alpha_of_many = 21;
#endif

}  // namespace zep::tests
