#include "front/terminal/prompt.h"

#include <iostream>
#include <utility>

namespace zep::front {

namespace {

bool shown = true;
std::string on_the_line;

}  // namespace

bool prompt(std::string_view text) {
  on_the_line = text;
  if (shown) std::cout << text;
  return std::cout.flush().good();
}

void show_prompts(bool on) { shown = on; }

bool prompts_are_shown() { return shown; }

std::string take_prompt() { return std::exchange(on_the_line, {}); }

}  // namespace zep::front
