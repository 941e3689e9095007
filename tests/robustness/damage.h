// SPDX-License-Identifier: GPL-3.0-or-later
// What happens to the whole text of a session.
#pragma once

#include <string>

#include "tests/robustness/dice.h"

namespace zep::tests {

// Some bytes are changed. Numbers stay whole, for a count that is too large to be accepted has
// parts that are accepted and take minutes.
void mutate(dice& d, std::string& text);

// The end may lie within a number, but not behind many of its digits, for the same reason.
void cut(dice& d, std::string& text);

// No name of a file may begin at the root. One can begin behind white space, or behind a name that
// is as long as names can be.
void keep_to_the_folder(std::string& text);

}  // namespace zep::tests
