// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/random_sessions.h"

#include <array>

#include "tests/robustness/broken_commands.h"
#include "tests/robustness/damage.h"
#include "tests/robustness/session_draft.h"
#include "tests/robustness/typed_commands.h"

namespace zep::tests {

namespace {

constexpr int most_commands = 60;

void choose_kind(session_draft& s) {
  constexpr std::array extents = {extent::low,    extent::low,    extent::low,
                                  extent::middle, extent::middle, extent::wide};
  s.reach = s.d.pick(extents);
  s.mutated = s.d.one_in(4);
  if (s.d.one_in(8)) s.line_end = "\r\n";
}

void write_step(session_draft& s) {
  const int kind = s.d.number_below(100);
  if (kind < 60) return any_command(s);
  if (kind < 75) return point_set(s);
  if (kind < 80) return identifier_alone(s);
  if (kind < 95) return broken_command(s);
  if (kind < 99 || !s.d.one_in(4)) return garbage(s);
  long_words(s);
}

void write_steps(session_draft& s) {
  const int commands = s.d.between(1, most_commands);
  for (int i = 0; i < commands; ++i) write_step(s);
}

}  // namespace

std::string random_session(unsigned seed) {
  session_draft s(seed);
  choose_kind(s);
  if (s.d.one_in(40)) {
    fill_the_table(s);
  } else {
    write_steps(s);
  }
  if (s.mutated) mutate(s.d, s.text);
  keep_to_the_folder(s.text);
  if (s.d.one_in(3)) cut(s.d, s.text);
  return s.text;
}

}  // namespace zep::tests
