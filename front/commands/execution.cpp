#include "front/commands/execution.h"

#include "base/interrupt.h"
#include "front/commands/command.h"
#include "front/session/error.h"
#include "points/record/results_before.h"

namespace zep::front {

namespace {

// Carries out what computes for X. An interrupt passes through and leaves X as it was.
template <class Action>
void leaving_nothing_half_done(scheme& X, Action action) {
  const results_before before(X);
  try {
    action();
  } catch (const interrupted&) {
    before.restore(X);
    throw;
  }
}

// Reports an identifier that the command can't work with.
bool accepts(const session& z, command_kind kind, int identifier) {
  if (kind == command_kind::nothing) return true;
  if (identifier == unknown_identifier) {
    error(error_code::unknown_identifier);
    return false;
  }
  if (identifier == no_identifier) {
    error(error_code::needs_identifier);
    return false;
  }
  if (kind == command_kind::scheme_identifier && z.var.type(identifier) != scheme_type) {
    error(error_code::wrong_type);
    return false;
  }
  return true;
}

}  // namespace

void execute(session& z, int c, int identifier) {
  if (c < 0 || c >= no_of_commands()) return;
  const command_record& todo = command[c];
  if (!accepts(z, todo.kind, identifier)) return;
  if (todo.kind == command_kind::scheme_identifier) {
    leaving_nothing_half_done(z.var.object(identifier), [&] { todo.action(z, identifier); });
  } else {
    todo.action(z, identifier);
  }
}

}  // namespace zep::front
