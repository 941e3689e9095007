// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions with the interpreter, inside the test.
#pragma once

#include <iostream>
#include <sstream>
#include <string>

#include "front/parser.h"
#include "front/session/workspace.h"
#include "tests/captured.h"

namespace zep::tests {

// The separator line.
inline const std::string line = std::string(79, '-') + "\n";

// What a session has written, prompts included, without banner and farewell.
struct transcript {
  std::string out;
  std::string err;
};

// Carries out what is typed in this workspace, until `quit` or the end.
inline transcript type_in(workspace& shared, const std::string& typed) {
  std::istringstream keyboard(typed);
  session z(shared, keyboard);
  const captured out(std::cout);
  const captured err(std::cerr);
  parser(z);
  return {out.text(), err.text()};
}

// The same in a workspace of its own, from the defaults on.
inline transcript type_in(const std::string& typed) {
  workspace shared;
  return type_in(shared, typed);
}

}  // namespace zep::tests
