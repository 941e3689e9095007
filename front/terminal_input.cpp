#include "front/terminal_input.h"

#include <iostream>
#include <utility>

#include "arith/interrupt.h"
#include "front/interruption.h"
#include "front/prompt.h"

namespace zep {

namespace {

bool is_blank(const std::string& line) {
  return line.find_first_not_of(" \t") == std::string::npos;
}

}  // namespace

terminal_input::terminal_input(const completer& complete) { start_editing(complete); }

terminal_input::~terminal_input() { end_editing(); }

terminal_input::int_type terminal_input::underflow() {
  if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
  // An interrupt that came too late for the computation it was meant for.
  static_cast<void>(take_interrupt());
  while (!ended_) {
    const std::string prompted = take_prompt();
    std::cout.flush();
    typed_line typed = read_line(prompted, prompts_are_shown());
    if (typed.how == typed_line::ending::line) {
      if (!is_blank(typed.text)) remember_line(typed.text);
      line_ = std::move(typed.text) + "\n";
      setg(line_.data(), line_.data(), line_.data() + line_.size());
      return traits_type::to_int_type(*gptr());
    }
    ended_ = typed.how == typed_line::ending::end_of_input;
    if (!ended_ && prompted != command_prompt) throw interrupted();
    if (!ended_) prompt(command_prompt);
  }
  return traits_type::eof();
}

}  // namespace zep
