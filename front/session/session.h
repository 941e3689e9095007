// SPDX-License-Identifier: GPL-3.0-or-later
// A session: commands from one source, carried out one after the other.
#pragma once

#include <iosfwd>

#include "front/session/input.h"
#include "front/session/workspace.h"

namespace zep::front {

struct session {
  // Reads from `in`, works in the workspace; both must outlive it.
  session(workspace& in_which, std::istream& in) : shared(in_which), typed(in) {}

  workspace& shared;
  input typed;
  // Set by `exit`, `quit` and the end of the input.
  bool quit = false;
};

}  // namespace zep::front
