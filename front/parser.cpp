// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/parser.h"

#include <iostream>
#include <optional>
#include <string>

#include "base/interrupt.h"
#include "front/commands/command.h"
#include "front/commands/execution.h"

namespace zep::front {

namespace {

// The word typed behind a command that takes an identifier. The next line is looked at only when
// white space, and not the line end, follows the command.
std::optional<std::string> read_name(session& z) {
  if (z.typed.at_line_end()) return std::nullopt;
  return z.typed.word(identifier_length);
}

void carry_out(session& z, const std::string& word) {
  if (const command_record* const todo = find_command(word)) {
    const bool takes_identifier = todo->kind != command_kind::nothing;
    execute(z, *todo, takes_identifier ? read_name(z) : std::nullopt);
  } else if (z.shared.var.find(word) != nullptr) {
    execute(z, *find_command("display"), word);
  } else {
    z.shared.wrong.error(error_code::unknown_word);
  }
}

void report_rest_of_line(session& z) {
  if (!z.typed.line_goes_on()) return;
  z.shared.wrong.count();
  std::cout << "unexpected '";
  z.typed.copy_rest_of_line(std::cout);
  std::cout << "'\n";
}

}  // namespace

bool has_to_stop(const workspace& shared) {
  return shared.stop_on_error && shared.wrong.number() > 0;
}

void parser(session& z) {
  // Without an output there is nobody to work for.
  while (!z.quit && z.shared.prompt.ask_for_command()) {
    try {
      carry_out(z, z.typed.word(identifier_length));
      report_rest_of_line(z);
    } catch (const end_of_input&) {
      z.quit = true;
    } catch (const interrupted&) {
      std::cout.flush();
      std::cerr << "interrupted\n";
      z.typed.forget();
    }
    if (has_to_stop(z.shared)) z.quit = true;
  }
}

}  // namespace zep::front
