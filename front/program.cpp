#include "front/program.h"

#include <fstream>
#include <iostream>
#include <optional>

#include "base/output.h"
#include "front/commands/settings.h"
#include "front/parser.h"
#include "front/session_source.h"
#include "front/terminal/prompt.h"
#include "front/terminal/screen_line.h"
#include "front/terminal/transcript.h"

namespace zep::front {

namespace {

void greet(session& z, bool decorated) {
  set_defaults(z);
  show_prompts(decorated);
  if (!decorated) return;
  hello();
  show_settings();
}

void take_leave(session& z, bool decorated) {
  z.var.del_all(true);
  if (decorated) std::cout << Line << "thanks for using ZEP\n" << Line;
}

// Runs the session that the buffer reads, and repeats it on a stream if there is one.
void run_session(session& z, std::istream& in, std::streambuf& buffer, std::ostream* repeat) {
  std::optional<repeated_input> repeated;
  if (repeat != nullptr) repeated.emplace(buffer, *repeat);
  in.rdbuf(repeated ? &*repeated : &buffer);
  // What a buffer throws comes through.
  in.exceptions(std::ios::badbit);
  z.quit = false;
  parser(z);
  in.exceptions(std::ios::goodbit);
  in.rdbuf(nullptr);
}

// Where lines are repeated, if anywhere. What goes to standard output is in the log already.
std::ostream* repetition(const options& chosen, const session_source& opened, std::ostream& log) {
  if (chosen.echo && !opened.is_terminal()) return &std::cout;
  return chosen.log ? &log : nullptr;
}

int run_sessions(session& z, std::istream& in, const options& chosen, screen_line* screen,
                 std::ostream& log) {
  for (const source& s : chosen.sources) {
    session_source opened(s, z.var, screen);
    if (!opened.is_open()) {
      std::cerr << "zep: can't open " << s.text << "\n";
      return 1;
    }
    run_session(z, in, opened.buffer(), repetition(chosen, opened, log));
    if (has_to_stop(z)) return 1;
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
  std::istream in(nullptr);
  session z(in, chosen.seed);
  z.stop_on_error = chosen.stop_on_error;
  greet(z, chosen.decorated);
  std::optional<screen_line> screen;
  if (at_a_terminal()) screen.emplace();
  const int status = run_sessions(z, in, chosen, screen ? &*screen : nullptr, log);
  take_leave(z, chosen.decorated);
  return status;
}

void run_program(std::istream& in) {
  session z(in);
  greet(z, true);
  parser(z);
  take_leave(z, true);
}

}  // namespace zep::front
