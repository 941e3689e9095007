// Sessions with the interpreter, inside the test.
#pragma once

#include <iostream>
#include <sstream>
#include <string>

#include "front/commands/settings.h"
#include "front/parser.h"
#include "tests/captured.h"

namespace zep::tests {

// The separator line.
inline const std::string line = std::string(79, '-') + "\n";

// What a session has written, prompts included, without banner and farewell.
struct transcript {
  std::string out;
  std::string err;
};

// Carries out what is typed, from the defaults on, until `quit` or the end.
inline transcript type_in(const std::string& typed) {
  std::istringstream keyboard(typed);
  session z(keyboard);
  set_defaults(z);
  const captured out(std::cout);
  const captured err(std::cerr);
  parser(z);
  return {out.text(), err.text()};
}

}  // namespace zep::tests
