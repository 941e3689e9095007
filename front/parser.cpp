#include "front/parser.h"

#include <iostream>
#include <string>

#include "base/interrupt.h"
#include "front/commands/command.h"
#include "front/commands/execution.h"
#include "front/session/error.h"
#include "front/terminal/prompt.h"

namespace zep::front {

namespace {

// The identifier typed behind a command. The next line is looked at only when white space, and not
// the line end, follows the command.
int read_identifier(session& z) {
  if (z.typed.at_line_end()) return no_identifier;
  return z.var.find(z.typed.word(identifier_length));
}

void carry_out(session& z, const std::string& word) {
  const int c = find_command(word);
  if (c >= 0) {
    const bool takes_identifier = command[c].kind != command_kind::nothing;
    execute(z, c, takes_identifier ? read_identifier(z) : no_identifier);
    return;
  }
  const int identifier = z.var.find(word);
  if (identifier == unknown_identifier) {
    error(error_code::unknown_word);
  } else {
    execute(z, find_command("display"), identifier);
  }
}

void report_rest_of_line(session& z) {
  if (!z.typed.line_goes_on()) return;
  count_error();
  std::cout << "unexpected '";
  z.typed.copy_rest_of_line(std::cout);
  std::cout << "'\n";
}

}  // namespace

bool has_to_stop(const session& z) { return z.stop_on_error && no_of_errors() > 0; }

void parser(session& z) {
  // Without an output there is nobody to work for.
  while (!z.quit && prompt(command_prompt)) {
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
    if (has_to_stop(z)) z.quit = true;
  }
}

}  // namespace zep::front
