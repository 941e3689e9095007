// What the user did wrong.
#pragma once

#include <string_view>

#include "base/floors.h"

namespace zep::front {

// Numbers of user errors.
namespace error_code {
constexpr int cannot_open_file = 30;
constexpr int different_dimensions = 31;
constexpr int unknown_word = 102;
constexpr int needs_identifier = 104;
constexpr int not_alphanumeric = 105;
constexpr int unknown_identifier = 107;
constexpr int wrong_type = 108;
constexpr int memory_exceeded = 110;
constexpr int already_exists = 111;
}  // namespace error_code

// Prints the text of a user error on standard output; nothing for an unknown number. 30 goes on
// with the text of 31, and 31 with that of 102.
void error(int code);

// Prints the text of an error that has no number on standard output.
void complain(std::string_view text);

// For an error whose text is printed elsewhere.
void count_error();

// Number of errors that have been reported so far in this process.
int no_of_errors();

}  // namespace zep::front
