// SPDX-License-Identifier: GPL-3.0-or-later
// Questions to the user.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::front {

// What is awaited where a line is read: more of what is being typed, a command, the name of a file,
// the answer to another question.
enum class awaited { more, command, file_name, answer };

// Asks on standard output, and knows what for.
class prompter {
 public:
  // Print the prompt, unless prompts are off, and remember what it asks for. All that has been
  // printed comes to be seen: what follows may take long. False when standard output can't be
  // written any more.
  bool ask_for_command() { return ask("% ", awaited::command); }
  bool ask_for_filename() { return ask("enter filename : ", awaited::file_name); }
  bool ask(std::string_view question) { return ask(question, awaited::answer); }

  // Turns prompts on, as they are at the start, or off.
  void show(bool on) { shown_ = on; }

  // What has been asked for since this was called last; `more` if nothing has.
  awaited take();

 private:
  bool ask(std::string_view question, awaited what);

  bool shown_ = true;
  awaited asked_for_ = awaited::more;
};

}  // namespace zep::front
