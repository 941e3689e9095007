// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/program.h"

#include <fstream>
#include <iostream>
#include <optional>

#include "base/output.h"
#include "front/commands/settings.h"
#include "front/parser.h"
#include "front/process/process.h"
#include "front/session_source.h"
#include "front/terminal/screen_line.h"
#include "front/terminal/transcript.h"

namespace zep::front {

namespace {

void greet(workspace& shared, bool decorated) {
  shared.prompt.show(decorated);
  if (!decorated) return;
  hello();
  show_settings();
}

void take_leave(workspace& shared, bool decorated) {
  shared.var.del_all(true);
  if (decorated) std::cout << Line << "thanks for using ZEP\n" << Line;
}

// Runs the session that the buffer reads, and repeats it on a stream if there is one.
void run_session(workspace& shared, std::streambuf& buffer, std::ostream* repeat) {
  std::optional<repeated_input> repeated;
  if (repeat != nullptr) repeated.emplace(buffer, *repeat);
  std::istream in(repeated ? &*repeated : &buffer);
  // What a buffer throws comes through.
  in.exceptions(std::ios::badbit);
  session z(shared, in);
  parser(z);
}

// Where lines are repeated, if anywhere. What goes to standard output is in the log already.
std::ostream* repetition(const options& chosen, const session_source& opened, std::ostream& log) {
  if (chosen.echo && !opened.is_terminal()) return &std::cout;
  return chosen.log ? &log : nullptr;
}

int run_sessions(workspace& shared, const options& chosen, screen_line* screen, std::ostream& log) {
  for (const source& s : chosen.sources) {
    session_source opened(s, shared, screen);
    if (!opened.is_open()) {
      std::cerr << "zep: can't open " << s.text << "\n";
      return 1;
    }
    run_session(shared, opened.buffer(), repetition(chosen, opened, log));
    if (has_to_stop(shared)) return 1;
  }
  return 0;
}

}  // namespace

int run_program(const options& chosen) {
  std::ofstream log;
  std::optional<doubled_output> logged;
  if (chosen.log) {
    log.open(*chosen.log, std::ios::app);
    if (!log) {
      std::cerr << "zep: can't open " << *chosen.log << "\n";
      return 1;
    }
    logged.emplace(std::cout, log);
  }
  workspace shared(chosen.seed);
  shared.stop_on_error = chosen.stop_on_error;
  greet(shared, chosen.decorated);
  std::optional<screen_line> screen;
  if (at_a_terminal()) screen.emplace();
  try {
    const int status = run_sessions(shared, chosen, screen ? &*screen : nullptr, log);
    take_leave(shared, chosen.decorated);
    return status;
  } catch (const division_by_zero& fault) {
    // While what is said goes into the log as well.
    end_with(fault);
  }
}

void run_program(std::istream& in) {
  workspace shared;
  greet(shared, true);
  session z(shared, in);
  parser(z);
  take_leave(shared, true);
}

}  // namespace zep::front
