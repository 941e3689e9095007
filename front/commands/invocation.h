// SPDX-License-Identifier: GPL-3.0-or-later
// Commands under way.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// A command that is carried out, in a session, for the identifier that it has taken; null where the
// kind asks for none.
struct invocation {
  session& z;
  identifier* named = nullptr;

  // Where the kind asks for a scheme.
  scheme& X() const { return *named->object; }
};

}  // namespace zep::front
