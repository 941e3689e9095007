// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/execution.h"

#include "base/interrupt.h"

namespace zep::front {

namespace {

// The identifier that a command of this kind can work with; null, with a complaint, if it is none.
identifier* accepted(session& z, command_kind kind, const std::optional<std::string>& name) {
  complaints& wrong = z.shared.wrong;
  if (!name) {
    wrong.error(error_code::needs_identifier);
    return nullptr;
  }
  identifier* const found = z.shared.var.find(*name);
  if (found == nullptr) {
    wrong.error(error_code::unknown_identifier);
  } else if (kind == command_kind::scheme_identifier && found->object == nullptr) {
    wrong.error(error_code::wrong_type);
    return nullptr;
  }
  return found;
}

// Carries out what computes for X. An interrupt passes through and leaves X as it was.
template <class Action>
void leaving_nothing_half_done(scheme& X, Action action) {
  const results before = X.known();
  try {
    action();
  } catch (const interrupted&) {
    X.restore(before);
    throw;
  }
}

}  // namespace

void execute(session& z, const command_record& todo, const std::optional<std::string>& name) {
  if (todo.kind == command_kind::nothing) {
    todo.action({z});
    return;
  }
  identifier* const named = accepted(z, todo.kind, name);
  if (named == nullptr) return;
  const invocation call{z, named};
  if (todo.kind == command_kind::scheme_identifier) {
    leaving_nothing_half_done(call.X(), [&] { todo.action(call); });
  } else {
    todo.action(call);
  }
}

}  // namespace zep::front
