// Questions to the user.
#pragma once

#include <string>
#include <string_view>

#include "base/floors.h"

namespace zep::front {

// Where the next command is awaited.
inline constexpr std::string_view command_prompt = "% ";
// Where the name of a file is.
inline constexpr std::string_view filename_prompt = "enter filename : ";

// Prints the text on standard output, unless prompts are off, and remembers it as the prompt that
// is on the line. All that has been printed comes to be seen: what follows may take long. False
// when standard output can't be written any more.
bool prompt(std::string_view text);

// Turns prompts on, as they are at the start, or off.
void show_prompts(bool on);
bool prompts_are_shown();

// The prompt that has been given since this was asked last; empty if there is none.
std::string take_prompt();

}  // namespace zep::front
