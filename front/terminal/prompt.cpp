// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/terminal/prompt.h"

#include <iostream>
#include <utility>

namespace zep::front {

bool prompter::ask(std::string_view question, awaited what) {
  asked_for_ = what;
  if (shown_) std::cout << question;
  return std::cout.flush().good();
}

awaited prompter::take() { return std::exchange(asked_for_, awaited::more); }

}  // namespace zep::front
